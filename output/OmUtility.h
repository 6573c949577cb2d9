// OmUtility: helpers over cell texts that belong to no one part. Static only.

#ifndef OM_OUTPUT_OMUTILITY_H_
#define OM_OUTPUT_OMUTILITY_H_

#include "backend/Export.h"

class OmComposite;
class OmNumber;

class OM_EXPORT OmUtility {
 public:
  OmUtility() = delete;

  // The first number in the composite's reading order, or null when it holds none. A composite that
  // is itself a component's cell is not looked into. The composite owns the number.
  static const OmNumber* GetFirstNumber(const OmComposite& composite);
};

#endif  // OM_OUTPUT_OMUTILITY_H_
