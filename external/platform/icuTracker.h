// icuTracker: what a text's conversions need to know of where it came from: whether the engine runs
// in Unicode mode, and its locale. Texts keep a pointer to one that somebody else owns. Immutable,
// so any number of threads may read one.

#ifndef OM_EXTERNAL_PLATFORM_ICUTRACKER_H_
#define OM_EXTERNAL_PLATFORM_ICUTRACKER_H_

#include <string>
#include <utility>

#include "external/platform/Export.h"

class OM_PLATFORM_API icuTracker {
 public:
  // (Unicode mode, locale name)
  explicit icuTracker(const std::pair<bool, std::string>& origin);
  ~icuTracker();
  icuTracker(const icuTracker&) = delete;
  icuTracker& operator=(const icuTracker&) = delete;

  bool getUnicode() const;
  const std::string& getLocale() const;

 private:
  const std::pair<bool, std::string> origin_;
};

#endif  // OM_EXTERNAL_PLATFORM_ICUTRACKER_H_
