// OMSException: the one exception type of the library, thrown by value where a caller breaks the
// contract of an operation. The message names the operation and the condition that did not hold,
// as in "OmPivotTable::Size() -- which < 0"; the two values are the numbers that broke it, 0 where
// there is none.

#ifndef OM_BACKEND_OMSEXCEPTION_H_
#define OM_BACKEND_OMSEXCEPTION_H_

#include <exception>
#include <string>

#include "backend/Export.h"

class OM_EXPORT OMSException : public std::exception {
 public:
  explicit OMSException(const std::string& message);
  OMSException(const std::string& message, double value1, double value2);
  OMSException(const OMSException&);
  ~OMSException() override;

  // "MESSAGE, value 1 == V1, value 2 == V2", with the values as a stream writes them unless told
  // otherwise (six significant digits). Valid as long as the exception.
  const char* what() const noexcept override;

  const std::string& getMessage() const { return message_; }
  double getValue1() const { return value1_; }
  double getValue2() const { return value2_; }

 private:
  std::string message_;
  double value1_;
  double value2_;
  std::string what_;
};

#endif  // OM_BACKEND_OMSEXCEPTION_H_
