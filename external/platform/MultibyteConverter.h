// MultibyteConverter: turns UTF-8 into the bytes of one code page, or says that it cannot be done;
// it never puts another character in the place of one that the code page lacks.
//
// Ownership: create gives the caller an object to delete. Threads: one at a time for each
// converter.

#ifndef OM_EXTERNAL_PLATFORM_MULTIBYTECONVERTER_H_
#define OM_EXTERNAL_PLATFORM_MULTIBYTECONVERTER_H_

#include <string>

#include "external/platform/Export.h"

class OM_PLATFORM_API MultibyteConverter {
 public:
  // What fromUtf8 gives.
  enum Result : int { CONVERTED = 0, UNKNOWN_CODE_PAGE = 1, NOT_CONVERTIBLE = 2 };

  // A converter for a code page by its name, as "windows-1252" or "Shift_JIS"; upper and lower case
  // are the same. Never null: with an unknown name every conversion fails. Throws std::bad_alloc.
  static MultibyteConverter* create(const std::string& codePageName);

  virtual ~MultibyteConverter();
  MultibyteConverter(const MultibyteConverter&) = delete;
  MultibyteConverter& operator=(const MultibyteConverter&) = delete;

  // Converts all of `utf8` into `converted`; 0 for success. On failure (the code page is unknown,
  // the text is not UTF-8, or holds a character that the code page lacks) `converted` is unchanged.
  // The two may be the same string. Throws std::bad_alloc.
  virtual int fromUtf8(const std::string& utf8, std::string& converted) = 0;

 protected:
  MultibyteConverter() = default;
};

#endif  // OM_EXTERNAL_PLATFORM_MULTIBYTECONVERTER_H_
