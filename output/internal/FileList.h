// FileList: the files that come with a part, their names and their contents in the order in which
// a producer delivers them: a name, the content in any number of pieces, the next name, and so on.

#ifndef OM_OUTPUT_INTERNAL_FILELIST_H_
#define OM_OUTPUT_INTERNAL_FILELIST_H_

#include <string>
#include <vector>

#include "output/internal/Payload.h"

namespace om::internal {

struct FileList {
  std::vector<std::string> names;
  std::vector<std::string> contents;

  // Null with length 0 is an empty name, or an empty piece.
  void addName(const char* data, unsigned int length) { add(names, data, length); }

  // A piece continues the last content when there are as many contents as names; otherwise it
  // begins another one. Only the numbers count, on purpose: a content that came before any name
  // takes the place of the content of the first name, and is continued as such.
  void addContent(const char* data, unsigned int length) {
    if (!contents.empty() && contents.size() == names.size()) {
      appendPiece(contents.back(), data, length);
    } else {
      add(contents, data, length);
    }
  }

 private:
  static void add(std::vector<std::string>& list, const char* data, unsigned int length) {
    if (length != 0) {
      list.emplace_back(data, length);
    } else {
      list.emplace_back();
    }
  }
};

}  // namespace om::internal

#endif  // OM_OUTPUT_INTERNAL_FILELIST_H_
