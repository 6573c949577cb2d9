#include "output/OmOutputPart.h"

#include <utility>

#include "output/OmPageTitle.h"
#include "output/OmProcedure.h"

OmOutputPart::OmOutputPart(const OmCellText& label) : label_(label.Clone(nullptr)) {}

OmOutputPart::OmOutputPart(const OmOutputPart&) = default;

OmOutputPart& OmOutputPart::operator=(const OmOutputPart&) = default;

OmOutputPart::~OmOutputPart() { adoptLabel(nullptr); }

void OmOutputPart::Label(const OmCellText& label) { adoptLabel(label.Clone(nullptr)); }

void OmOutputPart::adoptLabel(OmCellText* label) noexcept { delete std::exchange(label_, label); }

OmOutputPart::Visitor::~Visitor() = default;

void OmOutputPart::Visitor::Visit(OmPageTitle& part) { Visit(static_cast<OmTextBlock&>(part)); }

void OmOutputPart::Visitor::Visit(OmProcedure& part) { Visit(static_cast<OmHeading&>(part)); }
