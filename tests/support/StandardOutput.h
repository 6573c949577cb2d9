// Catches what is written to the standard output stream while it lives.

#ifndef OM_TESTS_SUPPORT_STANDARDOUTPUT_H_
#define OM_TESTS_SUPPORT_STANDARDOUTPUT_H_

#include <iostream>
#include <sstream>
#include <string>

namespace om::test {

class StandardOutput {
 public:
  StandardOutput() : former_(std::cout.rdbuf(text_.rdbuf())) {}
  ~StandardOutput() { std::cout.rdbuf(former_); }
  StandardOutput(const StandardOutput&) = delete;
  StandardOutput& operator=(const StandardOutput&) = delete;

  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::streambuf* former_;
};

}  // namespace om::test

#endif  // OM_TESTS_SUPPORT_STANDARDOUTPUT_H_
