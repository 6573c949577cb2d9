// One text of every kind, for tests that hold for all of them.

#ifndef OM_TESTS_EXTERNAL_CELLS_SAMPLES_H_
#define OM_TESTS_EXTERNAL_CELLS_SAMPLES_H_

#include <array>
#include <memory>
#include <ostream>

#include "external/cells/OmComposite.h"
#include "external/cells/OmDateCell.h"
#include "external/cells/OmMessageCell.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "external/cells/OmValueCell.h"
#include "external/cells/OmVariableCell.h"

namespace om::test {

using TextOwner = std::unique_ptr<OmCellText>;

struct Sample {
  const char* name;
  int kind;
  const char* text;                    // the string form
  TextOwner (*make)(OmMemoryRegion*);  // a new text in a region
};

inline void PrintTo(const Sample& sample, std::ostream* stream) { *stream << sample.name; }

inline constexpr std::array<Sample, 7> kSamples{{
    {"Message", 0, "3 of all variables in use",
     [](OmMemoryRegion* region) -> TextOwner {
       std::unique_ptr<OmMessageCell> message(
           new (region) OmMessageCell(OmStringCell("{0} of {1}"), region));
       message->Append(OmNumber(3));
       message->Append(OmStringCell("all variables in use"));
       return message;
     }},
    {"String", 1, "a text of more than eight characters",
     [](OmMemoryRegion* region) -> TextOwner {
       return TextOwner(new (region) OmStringCell("a text of more than eight characters", region));
     }},
    {"Number", 2, "1,234.50",
     [](OmMemoryRegion* region) -> TextOwner {
       return TextOwner(new (region) OmNumber(1234.5, {2, false, true}));
     }},
    {"Variable", 3, "Age of the respondent, in years",
     [](OmMemoryRegion* region) -> TextOwner {
       return TextOwner(
           new (region) OmVariableCell("age_of_the_respondent", "Age of the respondent, in years"));
     }},
    {"Value", 4, "employed for the whole year",
     [](OmMemoryRegion* region) -> TextOwner {
       return TextOwner(new (region)
                            OmValueCell("EMPLOYED_ALL_YEAR_LONG", "employed for the whole year"));
     }},
    {"Date", 5, "2026-11-21 13:05:00",
     [](OmMemoryRegion* region) -> TextOwner {
       return TextOwner(new (region) OmDateCell({2026, 11, 21, 13, 5, 0}, true));
     }},
    {"Composite", 6, "income (of the household), age",
     [](OmMemoryRegion* region) -> TextOwner {
       std::unique_ptr<OmComposite> composite(new (region) OmComposite(region));
       composite->Append(OmStringCell("income"));
       composite->Append(OmStringCell("of the household"), 1);
       composite->Append(OmStringCell("age"));
       return composite;
     }},
}};

inline const OmCellMetaData kSampleMeta{
    "the mean of all valid values", {"age_of_the_respondent", "income"}, "weighted by household"};

}  // namespace om::test

#endif  // OM_TESTS_EXTERNAL_CELLS_SAMPLES_H_
