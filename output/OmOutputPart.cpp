#include "output/OmOutputPart.h"

#include <utility>

#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"
#include "output/internal/SharedRecord.h"

OmOutputPart::OmOutputPart(const OmCellText& label) : label_(label.Clone(nullptr)) {}

OmOutputPart::OmOutputPart(const OmOutputPart&) = default;

OmOutputPart& OmOutputPart::operator=(const OmOutputPart&) = default;

OmOutputPart::OmOutputPart(const OmOutputPart& other, om::internal::SharedRecord& record)
    : label_(other.label_),
      clientData_(other.clientData_),
      visible_(other.visible_),
      expanded_(other.expanded_),
      ownsLabel_(false) {
  if (other.ownsLabel_) {
    record.keepLabel(other.label_);
    other.ownsLabel_ = false;
  }
  record.addPart();
}

OmOutputPart::~OmOutputPart() { adoptLabel(nullptr); }

void OmOutputPart::Label(const OmCellText& label) { adoptLabel(label.Clone(nullptr)); }

void OmOutputPart::adoptLabel(OmCellText* label) noexcept {
  OmCellText* const former = std::exchange(label_, label);
  if (std::exchange(ownsLabel_, true)) delete former;
}

OmOutputPart::Visitor::~Visitor() = default;

void OmOutputPart::Visitor::Visit(OmPageTitle& part) { Visit(static_cast<OmTextBlock&>(part)); }

void OmOutputPart::Visitor::Visit(OmProcedure& part) { Visit(static_cast<OmHeading&>(part)); }
