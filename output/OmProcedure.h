// OmProcedure: the heading of what one command produced, with the command's text, the language and
// locale it ran in, and how variables and values are to be shown below it.
//
// Ownership: as for OmHeading; the texts here are the procedure's own, also in a copy.

#ifndef OM_OUTPUT_OMPROCEDURE_H_
#define OM_OUTPUT_OMPROCEDURE_H_

#include <string>

#include "output/OmHeading.h"

class OM_EXPORT OmProcedure : public OmHeading {
 public:
  // The command is the label's string form; the translated command is empty; all four displays are
  // LABELS. Throws std::bad_alloc and what cloning the label throws.
  OmProcedure(const OmCellText& label, const std::string& languageCode,
              const std::string& localeCodePage, const std::string& localeName);
  OmProcedure(const OmProcedure&);
  OmProcedure& operator=(const OmProcedure&);
  ~OmProcedure() override;

  void Accept(Visitor& visitor) override;

  const std::string& Command() const { return texts_.command; }
  void SetCommand(const std::string& command) { texts_.command = command; }
  const std::string& LanguageCode() const { return texts_.languageCode; }
  const std::string& LocaleCodePage() const { return texts_.localeCodePage; }
  const std::string& LocaleName() const { return texts_.localeName; }
  const std::string& TransCommand() const { return texts_.transCommand; }
  void SetTransCommand(const std::string& command) { texts_.transCommand = command; }

  OmCellText::ModeType OutlineVarDisplay() const { return displays_.outlineVar; }
  void OutlineVarDisplay(OmCellText::ModeType mode) { displays_.outlineVar = mode; }
  OmCellText::ModeType OutlineValueDisplay() const { return displays_.outlineValue; }
  void OutlineValueDisplay(OmCellText::ModeType mode) { displays_.outlineValue = mode; }
  OmCellText::ModeType TableVarDisplay() const { return displays_.tableVar; }
  void TableVarDisplay(OmCellText::ModeType mode) { displays_.tableVar = mode; }
  OmCellText::ModeType TableValueDisplay() const { return displays_.tableValue; }
  void TableValueDisplay(OmCellText::ModeType mode) { displays_.tableValue = mode; }

  // Makes `text`, which may be the present label, both the label and, by its string form, the
  // command. Throws what Clone throws; both are then as before.
  void setOutlineText(const OmCellText& text);

 private:
  struct Texts {
    std::string command;
    std::string languageCode;
    std::string localeCodePage;
    std::string localeName;
    std::string transCommand;
  };

  struct Displays {
    OmCellText::ModeType outlineVar = OmCellText::LABELS;
    OmCellText::ModeType outlineValue = OmCellText::LABELS;
    OmCellText::ModeType tableVar = OmCellText::LABELS;
    OmCellText::ModeType tableValue = OmCellText::LABELS;
  };

  OmProcedure(const OmProcedure& other, Texts texts) noexcept;

  Texts texts_;
  Displays displays_;
};

#endif  // OM_OUTPUT_OMPROCEDURE_H_
