// OutputFile: a file that is there whole or not at all. It is written under another name beside its
// place and renamed when it is complete; until then a file that was there stays as it is.
//
//   page.html.tmp-4f1c9a   while it is written; removed by the destructor, and by a signal
//   page.html              after commit()
//
// A name that leads to something that is no plain file, as /dev/null, is written to directly.
// Errors: Failure (data) that names the file.
// Threads: one output file at a time in a process, because a signal has to find it.

#ifndef OM_TOOLS_TABULATE_OUTPUTFILE_H_
#define OM_TOOLS_TABULATE_OUTPUTFILE_H_

#include <optional>
#include <ostream>
#include <string>

#include "tools/tabulate/DescriptorBuffer.h"

namespace om::tabulate {

class OutputFile {
 public:
  explicit OutputFile(const std::string& name);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  std::ostream& stream() { return stream_; }
  // For who writes by name instead, and then nothing to the stream.
  const std::string& path() const { return temporary_.empty() ? place_ : temporary_; }
  // Puts the file in its place.
  void commit();

  // From now on the signals that end the process remove an unfinished file first.
  static void removeOnSignals();

 private:
  void open();
  void remove();

  std::string name_;       // for messages
  std::string place_;      // where it goes, symbolic links resolved
  std::string temporary_;  // empty when it is written directly
  int descriptor_ = -1;
  std::optional<DescriptorBuffer> buffer_;
  std::ostream stream_{nullptr};
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_OUTPUTFILE_H_
