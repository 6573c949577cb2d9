#include "output/OmUtility.h"

#include "external/cells/OmComposite.h"
#include "external/cells/OmNumber.h"

const OmNumber* OmUtility::GetFirstNumber(const OmComposite& composite) {
  for (const OmComposite::Component& component : composite.Components()) {
    if (const auto* number = dynamic_cast<const OmNumber*>(component.cell.get())) return number;
  }
  return nullptr;
}
