// The visitor: which visit each kind of part asks for, and what the visits do that nobody
// overrides.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "output/OmAnswerTree.h"
#include "output/OmChart.h"
#include "output/OmHeading.h"
#include "output/OmInteractive.h"
#include "output/OmModel.h"
#include "output/OmOutputPart.h"
#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/OmTextBlock.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

// The visits in order, each with the address of its part.
using Visits = std::vector<std::pair<std::string, const void*>>;

// Overrides what has no default.
class SevenVisits : public OmOutputPart::Visitor {
 public:
  using OmOutputPart::Visitor::Visit;
  void Visit(OmInteractive& part) override { note("interactive", std::addressof(part)); }
  void Visit(OmModel& part) override { note("model", std::addressof(part)); }
  void Visit(OmAnswerTree& part) override { note("answer tree", std::addressof(part)); }
  void Visit(OmChart& part) override { note("chart", std::addressof(part)); }
  void Visit(OmTextBlock& part) override { note("text block", &part); }
  void Visit(OmHeading& part) override { note("heading", &part); }
  void Visit(OmPivotTable& part) override { note("pivot table", std::addressof(part)); }

  Visits visits;

 protected:
  void note(const char* visit, const void* part) { visits.emplace_back(visit, part); }
};

class NineVisits : public SevenVisits {
 public:
  using SevenVisits::Visit;
  void Visit(OmPageTitle& part) override { note("page title", &part); }
  void Visit(OmProcedure& part) override { note("procedure", &part); }
};

class VisitsOfPageTitles : public SevenVisits {
 public:
  using SevenVisits::Visit;
  void Visit(OmPageTitle& part) override { note("page title", &part); }
};

class VisitsOfProcedures : public SevenVisits {
 public:
  using SevenVisits::Visit;
  void Visit(OmProcedure& part) override { note("procedure", &part); }
};

// Notes the kinds with a default and then passes them on to it.
class VisitsThatPassOn : public SevenVisits {
 public:
  using SevenVisits::Visit;
  void Visit(OmPageTitle& part) override {
    note("page title", &part);
    OmOutputPart::Visitor::Visit(part);
  }
  void Visit(OmProcedure& part) override {
    note("procedure", &part);
    OmOutputPart::Visitor::Visit(part);
  }
};

template <class Visitor>
Visits visitsOf(OmOutputPart& part) {
  Visitor visitor;
  part.Accept(visitor);
  return visitor.visits;
}

const OmStringCell kLabel("label");

TEST(OmOutputPartVisitor, SeesAHeadingAsAHeading) {
  OmHeading heading(kLabel);
  EXPECT_EQ(visitsOf<NineVisits>(heading), (Visits{{"heading", &heading}}));
}

TEST(OmOutputPartVisitor, SeesAProcedureAsAProcedure) {
  OmProcedure procedure(kLabel, "en", "UTF-8", "en_US");
  EXPECT_EQ(visitsOf<NineVisits>(procedure), (Visits{{"procedure", &procedure}}));
}

TEST(OmOutputPartVisitor, SeesATextBlockAsATextBlock) {
  OmTextBlock block(kLabel, "UTF-8");
  EXPECT_EQ(visitsOf<NineVisits>(block), (Visits{{"text block", &block}}));
}

TEST(OmOutputPartVisitor, SeesALogAsATextBlock) {
  OmTextBlock log(OmStringCell("Log"), "UTF-8");
  EXPECT_EQ(visitsOf<NineVisits>(log), (Visits{{"text block", &log}}));
}

TEST(OmOutputPartVisitor, SeesAPageTitleAsAPageTitle) {
  OmPageTitle title("UTF-8");
  EXPECT_EQ(visitsOf<NineVisits>(title), (Visits{{"page title", &title}}));
}

TEST(OmOutputPartVisitor, SeesAChartAsAChart) {
  OmChart chart(kLabel, "", 1);
  EXPECT_EQ(visitsOf<NineVisits>(chart), (Visits{{"chart", &chart}}));
}

TEST(OmOutputPartVisitor, SeesAModelAsAModel) {
  OmModel model(kLabel);
  EXPECT_EQ(visitsOf<NineVisits>(model), (Visits{{"model", &model}}));
}

TEST(OmOutputPartVisitor, SeesAnInteractiveOutputAsAnInteractiveOutput) {
  OmInteractive interactive(kLabel, "", 1);
  EXPECT_EQ(visitsOf<NineVisits>(interactive), (Visits{{"interactive", &interactive}}));
}

TEST(OmOutputPartVisitor, SeesAnAnswerTreeAsAnAnswerTree) {
  const std::string codePage = "UTF-8";
  OmAnswerTree tree(kLabel, codePage);
  EXPECT_EQ(visitsOf<NineVisits>(tree), (Visits{{"answer tree", &tree}}));
}

TEST(OmOutputPartVisitor, SeesAKindOfTheCallersOwnAsTheKindThatItDerivesFrom) {
  CountedPart part("part");
  EXPECT_EQ(visitsOf<NineVisits>(part), (Visits{{"heading", &part}}));
}

TEST(OmOutputPartVisitor, SeesAPageTitleAsATextBlockByDefault) {
  OmPageTitle title("UTF-8");
  EXPECT_EQ(visitsOf<SevenVisits>(title), (Visits{{"text block", &title}}));
}

TEST(OmOutputPartVisitor, SeesAProcedureAsAHeadingByDefault) {
  OmProcedure procedure(kLabel, "en", "UTF-8", "en_US");
  EXPECT_EQ(visitsOf<SevenVisits>(procedure), (Visits{{"heading", &procedure}}));
}

TEST(OmOutputPartVisitor, SeesHeadingsAndTextBlocksAsThemselvesWithoutTheOthers) {
  OmHeading heading(kLabel);
  OmTextBlock block(kLabel, "UTF-8");
  EXPECT_EQ(visitsOf<SevenVisits>(heading), (Visits{{"heading", &heading}}));
  EXPECT_EQ(visitsOf<SevenVisits>(block), (Visits{{"text block", &block}}));
}

TEST(OmOutputPartVisitor, ChoosesEachOfTheTwoDefaultsForItself) {
  OmPageTitle title("UTF-8");
  OmProcedure procedure(kLabel, "en", "UTF-8", "en_US");
  EXPECT_EQ(visitsOf<VisitsOfPageTitles>(title), (Visits{{"page title", &title}}));
  EXPECT_EQ(visitsOf<VisitsOfPageTitles>(procedure), (Visits{{"heading", &procedure}}));
  EXPECT_EQ(visitsOf<VisitsOfProcedures>(title), (Visits{{"text block", &title}}));
  EXPECT_EQ(visitsOf<VisitsOfProcedures>(procedure), (Visits{{"procedure", &procedure}}));
}

TEST(OmOutputPartVisitor, PassesAPageTitleOnFromAnOverride) {
  OmPageTitle title("UTF-8");
  EXPECT_EQ(visitsOf<VisitsThatPassOn>(title),
            (Visits{{"page title", &title}, {"text block", &title}}));
}

TEST(OmOutputPartVisitor, PassesAProcedureOnFromAnOverride) {
  OmProcedure procedure(kLabel, "en", "UTF-8", "en_US");
  EXPECT_EQ(visitsOf<VisitsThatPassOn>(procedure),
            (Visits{{"procedure", &procedure}, {"heading", &procedure}}));
}

TEST(OmOutputPartVisitor, DefaultsTheSameWayWithoutAPartThatAccepts) {
  OmPageTitle title("UTF-8");
  OmProcedure procedure(kLabel, "en", "UTF-8", "en_US");
  SevenVisits visitor;
  OmOutputPart::Visitor& base = visitor;
  base.Visit(title);
  base.Visit(procedure);
  EXPECT_EQ(visitor.visits, (Visits{{"text block", &title}, {"heading", &procedure}}));
}

TEST(OmOutputPartVisitor, IsCalledOnceForEachAccept) {
  OmHeading heading(kLabel);
  OmPageTitle title("UTF-8");
  SevenVisits visitor;
  heading.Accept(visitor);
  title.Accept(visitor);
  heading.Accept(visitor);
  EXPECT_EQ(visitor.visits,
            (Visits{{"heading", &heading}, {"text block", &title}, {"heading", &heading}}));
}

TEST(OmOutputPartVisitor, EndsAsTheVisitorThatItIs) {
  class Ending : public SevenVisits {
   public:
    explicit Ending(bool& ended) : ended_(ended) {}
    ~Ending() override { ended_ = true; }

   private:
    bool& ended_;
  };
  bool ended = false;
  std::unique_ptr<OmOutputPart::Visitor> visitor = std::make_unique<Ending>(ended);
  visitor.reset();
  EXPECT_TRUE(ended);
}

// Base with the visit of one kind overridden.
template <class Base, class Part>
class Overriding : public Base {
 public:
  using Base::Visit;
  void Visit(Part&) override {}
};

// A visitor that overrides the visits of all the kinds but the omitted one.
template <class Omitted, class Base, class... Kinds>
struct Without {
  using Type = Base;
};
template <class Omitted, class Base, class Kind, class... Kinds>
struct Without<Omitted, Base, Kind, Kinds...>
    : Without<Omitted,
              std::conditional_t<std::is_same_v<Omitted, Kind>, Base, Overriding<Base, Kind>>,
              Kinds...> {};

template <class Omitted>
constexpr bool kAbstractWithout = std::is_abstract_v<
    typename Without<Omitted, OmOutputPart::Visitor, OmInteractive, OmModel, OmAnswerTree, OmChart,
                     OmTextBlock, OmHeading, OmPivotTable>::Type>;

TEST(OmOutputPartVisitor, LeavesSevenVisitsToTheCallersVisitor) {
  EXPECT_TRUE(kAbstractWithout<OmInteractive>);
  EXPECT_TRUE(kAbstractWithout<OmModel>);
  EXPECT_TRUE(kAbstractWithout<OmAnswerTree>);
  EXPECT_TRUE(kAbstractWithout<OmChart>);
  EXPECT_TRUE(kAbstractWithout<OmTextBlock>);
  EXPECT_TRUE(kAbstractWithout<OmHeading>);
  EXPECT_TRUE(kAbstractWithout<OmPivotTable>);
}

TEST(OmOutputPartVisitor, NeedsNoVisitOfPageTitlesAndProcedures) {
  EXPECT_FALSE(kAbstractWithout<void>);
}

}  // namespace
}  // namespace om::test
