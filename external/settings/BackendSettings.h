// BackendSettings: the settings of the process that bear on output. A plain value; each table keeps
// a copy of its own. Threads: an object belongs to one thread at a time.

#ifndef OM_EXTERNAL_SETTINGS_BACKENDSETTINGS_H_
#define OM_EXTERNAL_SETTINGS_BACKENDSETTINGS_H_

#include <string>

#include "external/settings/Export.h"

class OM_SETTINGS_API BackendSettings {
 public:
  // Fast tables and Unicode on, no locale name, no limit of cells.
  BackendSettings();
  BackendSettings(const BackendSettings&);
  BackendSettings& operator=(const BackendSettings&);
  ~BackendSettings();

  // Whether the texts of a table are given the trackers of its code page.
  bool getFastTables() const { return fastTables_; }
  void setFastTables(bool fastTables);

  // Whether the engine runs in Unicode mode.
  bool getUnicode() const { return unicode_; }
  void setUnicode(bool unicode);

  // The engine's locale, by its name.
  const std::string& getLocale() const { return locale_; }
  void setLocale(const std::string& locale);

  // How many cells a table may be given before it is marked as scratched.
  long long getMaxCells() const { return maxCells_; }
  void setMaxCells(long long maxCells);

 private:
  bool fastTables_;
  bool unicode_;
  std::string locale_;
  long long maxCells_;
};

#endif  // OM_EXTERNAL_SETTINGS_BACKENDSETTINGS_H_
