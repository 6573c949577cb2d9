#include "output/OmProcedure.h"

#include <utility>

OmProcedure::OmProcedure(const OmCellText& label, const std::string& languageCode,
                         const std::string& localeCodePage, const std::string& localeName)
    : OmHeading(label), texts_{label, languageCode, localeCodePage, localeName, {}} {}

// The texts are copied before anything is shared: should that fail, this procedure's destructor
// would delete the other's label and footnotes.
OmProcedure::OmProcedure(const OmProcedure& other) : OmProcedure(other, other.texts_) {}

OmProcedure::OmProcedure(const OmProcedure& other, Texts texts) noexcept
    : OmHeading(other), texts_(std::move(texts)), displays_(other.displays_) {}

OmProcedure& OmProcedure::operator=(const OmProcedure& other) {
  Texts texts = other.texts_;
  OmHeading::operator=(other);
  texts_ = std::move(texts);
  displays_ = other.displays_;
  return *this;
}

OmProcedure::~OmProcedure() = default;

void OmProcedure::Accept(Visitor& visitor) { visitor.Visit(*this); }

void OmProcedure::setOutlineText(const OmCellText& text) {
  std::string command = text;
  Label(text);
  texts_.command = std::move(command);
}
