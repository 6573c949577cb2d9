// OmModel: a statistical model as its procedure delivers it: PMML, a binary stream and two
// containers. The library stores these payloads and gives them back byte for byte.
//
// Ownership, lifetime, threads, cost, errors and pieces `(data, length)`: as for OmChart, whose
//   copies share a record in the same way.

#ifndef OM_OUTPUT_OMMODEL_H_
#define OM_OUTPUT_OMMODEL_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "output/OmOutputPart.h"

namespace om::internal {

struct ModelRecord;

}  // namespace om::internal

class OM_EXPORT OmModel : public OmOutputPart {
 public:
  // Producers and consumers may agree on further values.
  enum MODEL_TYPE : std::int32_t { UNSPECIFIED_MODEL = 0 };

  // An empty model. Throws also what cloning the label throws.
  explicit OmModel(const OmCellText& label);
  OmModel(const OmModel&);
  OmModel& operator=(const OmModel&) = delete;
  ~OmModel() override;

  void Accept(Visitor& visitor) override;

  // Each appends a piece to its field. The order of the virtual functions is part of the library's
  // binary interface.
  virtual void SetPMML(const char* data, unsigned int length);
  virtual void SetBinaryDataStream(const char* data, unsigned int length);
  virtual void SetPMMLContainer(const char* data, unsigned int length);
  virtual void SetStatXMLContainer(const char* data, unsigned int length);

  void SetModelType(MODEL_TYPE type);
  MODEL_TYPE GetModelType() const;

  const std::string& GetPMML() const;
  const std::string& GetBinaryDataStream() const;
  const std::string& GetPMMLContainer() const;
  const std::string& GetStatXMLContainer() const;

  // The same as views.
  std::string_view viewPMML() const;
  std::string_view viewBinaryDataStream() const;
  std::string_view viewPMMLContainer() const;
  std::string_view viewStatXMLContainer() const;

 private:
  om::internal::ModelRecord* record_;
};

#endif  // OM_OUTPUT_OMMODEL_H_
