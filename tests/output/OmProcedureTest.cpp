// Procedures: the texts and displays of one command, and what copies share.

#include "output/OmProcedure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "tests/output/Undestroyed.h"
#include "tests/support/Counted.h"

namespace om::test {
namespace {

using Texts = std::vector<std::string>;
using Mode = OmCellText::ModeType;
using Modes = std::vector<Mode>;

Modes modesOf(const OmProcedure& procedure) {
  return {procedure.OutlineVarDisplay(), procedure.OutlineValueDisplay(),
          procedure.TableVarDisplay(), procedure.TableValueDisplay()};
}

// Command, language, code page, locale name, translated command.
Texts textsOf(const OmProcedure& procedure) {
  return {procedure.Command(), procedure.LanguageCode(), procedure.LocaleCodePage(),
          procedure.LocaleName(), procedure.TransCommand()};
}

constexpr Mode kLabels = OmCellText::LABELS;

class AProcedure : public testing::Test {
 protected:
  OmProcedure procedure{OmStringCell("Means"), "de", "UTF-8", "de_DE"};
};

TEST_F(AProcedure, IsAHeadingWithoutFootnotes) {
  EXPECT_TRUE((std::is_base_of_v<OmHeading, OmProcedure>));
  EXPECT_TRUE(procedure.Footnotes().empty());
}

TEST_F(AProcedure, HasTheTextsThatItWasMadeWith) {
  EXPECT_EQ(textsOf(procedure), (Texts{"Means", "de", "UTF-8", "de_DE", ""}));
  EXPECT_EQ(std::string(procedure.Label()), "Means");
}

TEST_F(AProcedure, HasDisplaysOfValueTwoAtFirst) {
  EXPECT_EQ(static_cast<int>(procedure.OutlineVarDisplay()), 2);
  EXPECT_EQ(static_cast<int>(procedure.OutlineValueDisplay()), 2);
  EXPECT_EQ(static_cast<int>(procedure.TableVarDisplay()), 2);
  EXPECT_EQ(static_cast<int>(procedure.TableValueDisplay()), 2);
}

TEST(OmProcedure, TakesItsCommandFromTheStringFormOfALabelOfAnyKind) {
  const OmProcedure procedure(OmNumber(12.5, {2, true, false}), "de", "UTF-8", "de_DE");
  EXPECT_EQ(procedure.Command(), "12.50%");
  EXPECT_NE(dynamic_cast<const OmNumber*>(&procedure.Label()), nullptr);
}

TEST(OmProcedure, KeepsLongTextsAndBytesOfValueZero) {
  const std::string language("a\0language\0code\0of\0many\0bytes", 29);
  const std::string codePage = "a code page with a long name";
  const std::string name = "a locale with a long name";
  const OmProcedure procedure(OmStringCell(std::string(1000, 'x')), language, codePage, name);
  EXPECT_EQ(textsOf(procedure), (Texts{std::string(1000, 'x'), language, codePage, name, ""}));
}

TEST(OmProcedure, KeepsItsTextsWhenTheGivenOnesChange) {
  std::string language = "de";
  std::string codePage = "UTF-8";
  std::string name = "de_DE";
  const OmProcedure procedure(OmStringCell("Means"), language, codePage, name);
  language = codePage = name = "changed";
  EXPECT_EQ(textsOf(procedure), (Texts{"Means", "de", "UTF-8", "de_DE", ""}));
}

TEST(OmProcedure, KeepsEmptyTexts) {
  const OmProcedure procedure(OmStringCell(""), "", "", "");
  EXPECT_EQ(textsOf(procedure), (Texts{"", "", "", "", ""}));
}

TEST_F(AProcedure, GivesItsTextsThemselves) {
  EXPECT_EQ(&procedure.Command(), &procedure.Command());
  EXPECT_EQ(&procedure.LanguageCode(), &procedure.LanguageCode());
  EXPECT_EQ(&procedure.LocaleCodePage(), &procedure.LocaleCodePage());
  EXPECT_EQ(&procedure.LocaleName(), &procedure.LocaleName());
  EXPECT_EQ(&procedure.TransCommand(), &procedure.TransCommand());
  EXPECT_TRUE((std::is_same_v<decltype(procedure.Command()), const std::string&>));
  EXPECT_TRUE((std::is_same_v<decltype(procedure.LanguageCode()), const std::string&>));
  EXPECT_TRUE((std::is_same_v<decltype(procedure.LocaleCodePage()), const std::string&>));
  EXPECT_TRUE((std::is_same_v<decltype(procedure.LocaleName()), const std::string&>));
  EXPECT_TRUE((std::is_same_v<decltype(procedure.TransCommand()), const std::string&>));
}

TEST_F(AProcedure, ShowsANewCommandThroughAReferenceTakenEarlier) {
  const std::string& command = procedure.Command();
  const std::string& translated = procedure.TransCommand();
  procedure.SetCommand("MEANS x BY y");
  procedure.SetTransCommand("MITTELWERTE x NACH y");
  EXPECT_EQ(command, "MEANS x BY y");
  EXPECT_EQ(translated, "MITTELWERTE x NACH y");
}

TEST_F(AProcedure, TakesACommandAlone) {
  std::string command = "MEANS x BY y";
  procedure.SetCommand(command);
  command = "changed";
  EXPECT_EQ(textsOf(procedure), (Texts{"MEANS x BY y", "de", "UTF-8", "de_DE", ""}));
  EXPECT_EQ(std::string(procedure.Label()), "Means");
}

TEST_F(AProcedure, TakesATranslatedCommandAlone) {
  std::string command = "MITTELWERTE x NACH y";
  procedure.SetTransCommand(command);
  command = "changed";
  EXPECT_EQ(textsOf(procedure), (Texts{"Means", "de", "UTF-8", "de_DE", "MITTELWERTE x NACH y"}));
  EXPECT_EQ(std::string(procedure.Label()), "Means");
}

TEST_F(AProcedure, TakesItsOwnTextsAsCommands) {
  procedure.SetCommand(procedure.Command());
  EXPECT_EQ(procedure.Command(), "Means");
  procedure.SetTransCommand(procedure.Command());
  EXPECT_EQ(procedure.TransCommand(), "Means");
  procedure.SetCommand(procedure.LanguageCode());
  EXPECT_EQ(procedure.Command(), "de");
  procedure.SetTransCommand("");
  EXPECT_EQ(procedure.TransCommand(), "");
}

TEST_F(AProcedure, TakesEachDisplayAlone) {
  procedure.OutlineVarDisplay(OmCellText::NAMES);
  EXPECT_EQ(modesOf(procedure), (Modes{OmCellText::NAMES, kLabels, kLabels, kLabels}));
  procedure.OutlineVarDisplay(kLabels);
  procedure.OutlineValueDisplay(OmCellText::NAMES);
  EXPECT_EQ(modesOf(procedure), (Modes{kLabels, OmCellText::NAMES, kLabels, kLabels}));
  procedure.OutlineValueDisplay(kLabels);
  procedure.TableVarDisplay(OmCellText::NAMES);
  EXPECT_EQ(modesOf(procedure), (Modes{kLabels, kLabels, OmCellText::NAMES, kLabels}));
  procedure.TableVarDisplay(kLabels);
  procedure.TableValueDisplay(OmCellText::NAMES);
  EXPECT_EQ(modesOf(procedure), (Modes{kLabels, kLabels, kLabels, OmCellText::NAMES}));
}

TEST_F(AProcedure, KeepsDisplaysAsPlainValues) {
  for (const std::int32_t value : {0, 1, 2, 3, 4, -1, INT32_MAX, INT32_MIN}) {
    const auto mode = static_cast<Mode>(value);
    procedure.OutlineVarDisplay(mode);
    procedure.OutlineValueDisplay(mode);
    procedure.TableVarDisplay(mode);
    procedure.TableValueDisplay(mode);
    EXPECT_EQ(modesOf(procedure), Modes(4, mode)) << value;
  }
  EXPECT_EQ(sizeof(Mode), 4U);
}

TEST_F(AProcedure, KeepsItsCommandWhenItsLabelIsReplaced) {
  procedure.Label(OmStringCell("label"));
  EXPECT_EQ(procedure.Command(), "Means");
}

TEST_F(AProcedure, ChangesLabelAndCommandTogether) {
  procedure.setOutlineText(OmStringCell("Comparison of means"));
  EXPECT_EQ(procedure.Command(), "Comparison of means");
  EXPECT_EQ(std::string(procedure.Label()), "Comparison of means");
}

TEST_F(AProcedure, ChangesNothingElseWithItsOutlineText) {
  procedure.SetTransCommand("MITTELWERTE");
  procedure.TableVarDisplay(OmCellText::NAMES);
  const OmVector<OmFootnote>* const footnotes = &procedure.Footnotes();
  procedure.setOutlineText(OmStringCell("text"));
  EXPECT_EQ(textsOf(procedure), (Texts{"text", "de", "UTF-8", "de_DE", "MITTELWERTE"}));
  EXPECT_EQ(modesOf(procedure), (Modes{kLabels, kLabels, OmCellText::NAMES, kLabels}));
  EXPECT_EQ(&procedure.Footnotes(), footnotes);
}

TEST_F(AProcedure, KeepsOneCloneOfItsOutlineText) {
  const CountedText text("text");
  procedure.setOutlineText(text);
  EXPECT_NE(&procedure.Label(), &text);
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(CountedText::made(), 2);
}

TEST_F(AProcedure, TakesTheStringFormOfAnOutlineTextOfAnyKind) {
  procedure.setOutlineText(OmNumber(1234.5, {1, false, true}));
  EXPECT_EQ(procedure.Command(), "1,234.5");
  const auto* const label = dynamic_cast<const OmNumber*>(&procedure.Label());
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Value(), 1234.5);
}

TEST(OmProcedure, DeletesTheFormerLabelWithANewOutlineText) {
  OmProcedure procedure(CountedText("former"), "de", "UTF-8", "de_DE");
  resetCounted();
  procedure.setOutlineText(OmStringCell("text"));
  EXPECT_EQ(CountedText::died(), Texts{"former"});
  EXPECT_EQ(CountedText::live(), 0);
}

TEST(OmProcedure, TakesItsPresentLabelAsOutlineText) {
  OmProcedure procedure(CountedText("a label that needs room of its own"), "de", "UTF-8", "de_DE");
  procedure.SetCommand("command");
  resetCounted();
  procedure.setOutlineText(procedure.Label());
  EXPECT_EQ(procedure.Command(), "a label that needs room of its own");
  EXPECT_EQ(std::string(procedure.Label()), "a label that needs room of its own");
  EXPECT_EQ(CountedText::cloned(), 1);
  EXPECT_EQ(CountedText::died(), Texts{"a label that needs room of its own"});
}

TEST(OmProcedure, TakesTheSameOutlineTextTwice) {
  OmProcedure procedure(OmStringCell("Means"), "de", "UTF-8", "de_DE");
  const OmStringCell text("text");
  procedure.setOutlineText(text);
  procedure.setOutlineText(text);
  EXPECT_EQ(procedure.Command(), "text");
  EXPECT_EQ(std::string(procedure.Label()), "text");
}

TEST(OmProcedure, DeletesFootnotesAndLabelOnceWhenItEnds) {
  auto procedure = std::make_unique<OmProcedure>(CountedText("label"), "de", "UTF-8", "de_DE");
  const CountedText text("text");
  const CountedText marker("a");
  procedure->Footnotes().emplace_back(&text, &marker, nullptr);
  resetCounted();
  procedure.reset();
  Texts died = CountedText::died();
  ASSERT_FALSE(died.empty());
  EXPECT_EQ(died.back(), "label");
  std::sort(died.begin(), died.end());
  EXPECT_EQ(died, (Texts{"a", "label", "text"}));
}

TEST_F(AProcedure, SharesLabelAndFootnotesWithACopy) {
  Undestroyed<OmProcedure> copy(procedure);
  EXPECT_EQ(&copy->Label(), &procedure.Label());
  EXPECT_EQ(&copy->Footnotes(), &procedure.Footnotes());
}

TEST_F(AProcedure, CopiesItsTextsAndDisplays) {
  procedure.SetCommand("MEANS");
  procedure.SetTransCommand("MITTELWERTE");
  procedure.OutlineVarDisplay(OmCellText::AS_CONFIGURED);
  procedure.OutlineValueDisplay(OmCellText::NAMES);
  procedure.TableValueDisplay(OmCellText::NAMES_AND_LABELS);
  Undestroyed<OmProcedure> copy(procedure);
  const Texts texts{"MEANS", "de", "UTF-8", "de_DE", "MITTELWERTE"};
  const Modes modes{OmCellText::AS_CONFIGURED, OmCellText::NAMES, kLabels,
                    OmCellText::NAMES_AND_LABELS};
  EXPECT_EQ(textsOf(*copy), texts);
  EXPECT_EQ(modesOf(*copy), modes);

  procedure.SetCommand("changed");
  procedure.SetTransCommand("changed");
  procedure.OutlineVarDisplay(kLabels);
  procedure.OutlineValueDisplay(kLabels);
  procedure.TableValueDisplay(kLabels);
  EXPECT_EQ(textsOf(*copy), texts);
  EXPECT_EQ(modesOf(*copy), modes);
}

TEST(OmProcedure, EndsWithEverythingThatItSharesWithASourceThatIsLetGoOf) {
  Undestroyed<OmProcedure> source(CountedText("label"), "de", "UTF-8", "de_DE");
  {
    const CountedText text("text");
    source->Footnotes().emplace_back(&text, nullptr, nullptr);
  }
  auto copy = std::make_unique<OmProcedure>(*source);
  resetCounted();
  copy.reset();
  EXPECT_EQ(CountedText::died(), (Texts{"text", "label"}));
  EXPECT_EQ(CountedText::live(), 0);
}

TEST_F(AProcedure, TakesEverythingByAssignmentAndForgetsWhatItOwned) {
  procedure.SetCommand("MEANS");
  procedure.SetTransCommand("MITTELWERTE");
  procedure.OutlineVarDisplay(OmCellText::AS_CONFIGURED);
  procedure.OutlineValueDisplay(OmCellText::NAMES);
  procedure.TableValueDisplay(OmCellText::NAMES_AND_LABELS);
  Undestroyed<OmProcedure> target(CountedText("former"), "en", "IBM850", "en_US");
  const OmCellText* const formerLabel = &target->Label();
  const OmVector<OmFootnote>* const formerFootnotes = &target->Footnotes();
  resetCounted();

  *target = procedure;
  EXPECT_EQ(&target->Label(), &procedure.Label());
  EXPECT_EQ(&target->Footnotes(), &procedure.Footnotes());
  EXPECT_EQ(textsOf(*target), (Texts{"MEANS", "de", "UTF-8", "de_DE", "MITTELWERTE"}));
  EXPECT_EQ(modesOf(*target), (Modes{OmCellText::AS_CONFIGURED, OmCellText::NAMES, kLabels,
                                     OmCellText::NAMES_AND_LABELS}));
  EXPECT_EQ(CountedText::died(), Texts());
  EXPECT_EQ(std::string(*formerLabel), "former");

  procedure.SetCommand("changed");
  EXPECT_EQ(target->Command(), "MEANS");
  delete formerFootnotes;
  delete formerLabel;
}

TEST_F(AProcedure, IsUnchangedByAssignmentToItself) {
  procedure.SetTransCommand("MITTELWERTE");
  procedure.TableVarDisplay(OmCellText::NAMES);
  const OmVector<OmFootnote>* const footnotes = &procedure.Footnotes();
  const OmProcedure& itself = procedure;
  procedure = itself;
  EXPECT_EQ(textsOf(procedure), (Texts{"Means", "de", "UTF-8", "de_DE", "MITTELWERTE"}));
  EXPECT_EQ(modesOf(procedure), (Modes{kLabels, kLabels, OmCellText::NAMES, kLabels}));
  EXPECT_EQ(&procedure.Footnotes(), footnotes);
}

}  // namespace
}  // namespace om::test
