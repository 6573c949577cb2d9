#include "backend/OMSException.h"

#include <locale>
#include <sstream>

namespace {

std::string compose(const std::string& message, double value1, double value2) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << message << ", value 1 == " << value1 << ", value 2 == " << value2;
  return text.str();
}

}  // namespace

OMSException::OMSException(const std::string& message) : OMSException(message, 0, 0) {}

OMSException::OMSException(const std::string& message, double value1, double value2)
    : message_(message),
      value1_(value1),
      value2_(value2),
      what_(compose(message, value1, value2)) {}

OMSException::OMSException(const OMSException&) = default;

OMSException::~OMSException() = default;

const char* OMSException::what() const noexcept { return what_.c_str(); }
