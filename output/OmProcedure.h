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

  const std::string& Command() const { return command_; }
  void SetCommand(const std::string& command) { command_ = command; }
  const std::string& LanguageCode() const { return languageCode_; }
  const std::string& LocaleCodePage() const { return localeCodePage_; }
  const std::string& LocaleName() const { return localeName_; }
  const std::string& TransCommand() const { return transCommand_; }
  void SetTransCommand(const std::string& command) { transCommand_ = command; }

  OmCellText::ModeType OutlineVarDisplay() const { return outlineVarDisplay_; }
  void OutlineVarDisplay(OmCellText::ModeType mode) { outlineVarDisplay_ = mode; }
  OmCellText::ModeType OutlineValueDisplay() const { return outlineValueDisplay_; }
  void OutlineValueDisplay(OmCellText::ModeType mode) { outlineValueDisplay_ = mode; }
  OmCellText::ModeType TableVarDisplay() const { return tableVarDisplay_; }
  void TableVarDisplay(OmCellText::ModeType mode) { tableVarDisplay_ = mode; }
  OmCellText::ModeType TableValueDisplay() const { return tableValueDisplay_; }
  void TableValueDisplay(OmCellText::ModeType mode) { tableValueDisplay_ = mode; }

  // Makes `text`, which may be the present label, both the label and, by its string form, the
  // command. Throws what Clone throws; both are then as before.
  void setOutlineText(const OmCellText& text);

 private:
  std::string command_;
  std::string languageCode_;
  std::string localeCodePage_;
  std::string localeName_;
  std::string transCommand_;
  OmCellText::ModeType outlineVarDisplay_ = OmCellText::LABELS;
  OmCellText::ModeType outlineValueDisplay_ = OmCellText::LABELS;
  OmCellText::ModeType tableVarDisplay_ = OmCellText::LABELS;
  OmCellText::ModeType tableValueDisplay_ = OmCellText::LABELS;
};

#endif  // OM_OUTPUT_OMPROCEDURE_H_
