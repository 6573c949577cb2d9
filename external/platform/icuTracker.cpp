#include "external/platform/icuTracker.h"

icuTracker::icuTracker(const std::pair<bool, std::string>& origin) : origin_(origin) {}
icuTracker::~icuTracker() = default;

bool icuTracker::getUnicode() const { return origin_.first; }
const std::string& icuTracker::getLocale() const { return origin_.second; }
