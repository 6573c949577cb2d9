// OmInteractive: an output that a viewer runs: a description in JSON with GeoJSON files. The
// library stores these payloads and gives them back byte for byte.
//
// Ownership, lifetime, threads, cost, errors and pieces `(data, length)`: as for OmChart, whose
//   copies share a record in the same way.

#ifndef OM_OUTPUT_OMINTERACTIVE_H_
#define OM_OUTPUT_OMINTERACTIVE_H_

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "output/OmOutputPart.h"

namespace om::internal {

struct InteractiveRecord;

}  // namespace om::internal

class OM_EXPORT OmInteractive : public OmOutputPart {
 public:
  // An empty output. The label is put into the code page as a chart's is (OmChart). Throws also
  // what cloning and reading the label throw.
  OmInteractive(const OmCellText& label, const std::string& localeCodePage,
                long long interactiveId);
  OmInteractive(const OmInteractive&);
  OmInteractive& operator=(const OmInteractive&) = delete;
  ~OmInteractive() override;

  void Accept(Visitor& visitor) override;

  // Appends a piece.
  void setInteractiveJSON(const char* data, unsigned int length);
  // Deliver a name, its content in pieces, the next name, and so on: the rule is that of OmChart.
  void addGeoJSONFileName(const char* data, unsigned int length);
  void addGeoJSONFileContent(const char* data, unsigned int length);
  // Each of these replaces its field.
  void setProcedureName(const std::string& name);
  void setJSONPath(const std::string& path);
  void setOptions(const std::string& options);

  long long getInteractiveId() const;
  const std::string& LocaleCodePage() const;
  const std::string& getInteractiveJSON() const;
  const std::string& getProcedureName() const;
  const std::string& getJSONPath() const;
  const std::string& getOptions() const;
  const std::vector<std::string>& getGeoJSONFileNames() const;
  const std::vector<std::string>& getGeoJSONContent() const;
  // Whether there is a name; contents do not count.
  bool hasGeoJSONFile() const;

  // The same as views.
  std::string_view viewInteractiveJSON() const;
  std::span<const std::string> viewGeoJSONFileNames() const;
  std::span<const std::string> viewGeoJSONContent() const;

 private:
  om::internal::InteractiveRecord* record_;
};

#endif  // OM_OUTPUT_OMINTERACTIVE_H_
