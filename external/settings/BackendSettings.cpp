#include "external/settings/BackendSettings.h"

#include <limits>

BackendSettings::BackendSettings()
    : fastTables_(true), unicode_(true), maxCells_(std::numeric_limits<long long>::max()) {}
BackendSettings::BackendSettings(const BackendSettings&) = default;

// The one member that may fail is copied before any is changed.
BackendSettings& BackendSettings::operator=(const BackendSettings& other) {
  std::string locale = other.locale_;
  fastTables_ = other.fastTables_;
  unicode_ = other.unicode_;
  locale_.swap(locale);
  maxCells_ = other.maxCells_;
  return *this;
}

BackendSettings::~BackendSettings() = default;

void BackendSettings::setFastTables(bool fastTables) { fastTables_ = fastTables; }

void BackendSettings::setUnicode(bool unicode) { unicode_ = unicode; }

void BackendSettings::setLocale(const std::string& locale) { locale_ = locale; }

void BackendSettings::setMaxCells(long long maxCells) { maxCells_ = maxCells; }
