#include "external/settings/BackendSettings.h"

#include <limits>

BackendSettings::BackendSettings()
    : fastTables_(true), unicode_(true), maxCells_(std::numeric_limits<long long>::max()) {}
BackendSettings::BackendSettings(const BackendSettings&) = default;
BackendSettings& BackendSettings::operator=(const BackendSettings&) = default;
BackendSettings::~BackendSettings() = default;

bool BackendSettings::getFastTables() const { return fastTables_; }
void BackendSettings::setFastTables(bool fastTables) { fastTables_ = fastTables; }

bool BackendSettings::getUnicode() const { return unicode_; }
void BackendSettings::setUnicode(bool unicode) { unicode_ = unicode; }

const std::string& BackendSettings::getLocale() const { return locale_; }
void BackendSettings::setLocale(const std::string& locale) { locale_ = locale; }

long long BackendSettings::getMaxCells() const { return maxCells_; }
void BackendSettings::setMaxCells(long long maxCells) { maxCells_ = maxCells; }
