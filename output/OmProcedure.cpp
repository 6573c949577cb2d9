#include "output/OmProcedure.h"

#include <utility>

OmProcedure::OmProcedure(const OmCellText& label, const std::string& languageCode,
                         const std::string& localeCodePage, const std::string& localeName)
    : OmHeading(label),
      command_(label),
      languageCode_(languageCode),
      localeCodePage_(localeCodePage),
      localeName_(localeName) {}

OmProcedure::OmProcedure(const OmProcedure&) = default;

OmProcedure& OmProcedure::operator=(const OmProcedure&) = default;

OmProcedure::~OmProcedure() = default;

void OmProcedure::Accept(Visitor& visitor) { visitor.Visit(*this); }

void OmProcedure::setOutlineText(const OmCellText& text) {
  std::string command = text;
  Label(text);
  command_ = std::move(command);
}
