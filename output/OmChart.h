// OmChart: a chart as its procedure delivers it: XML, a binary stream, an image, a visualisation in
// JSON, map information, the files that they refer to. The library stores these payloads and gives
// them back byte for byte; it reads none of them but the map information.
//
//   OmChart chart(label, "windows-1252", 7);
//   chart.SetImageStream(piece, length);      // any number of pieces, in any order of the fields
//   chart.Done(info);                         // the producer has delivered everything
//   ... chart.GetImageData() ...              // consumers read
//   chart.deleteData();                       // and may drop the binary stream
//
// Ownership: the chart owns what it holds, in a record behind one pointer. Copies share the record
//   and the label with their source: what is stored through one of them is seen through all. Both
//   live until the last of these charts ends, in whatever order they end. (A copy keeps the label
//   that it was made with when another one is given a new label.)
// Lifetime: references to strings and lists are good as long as any chart that shares the record;
//   their elements and characters, and views, until the next call that changes the field.
// Threads: charts that share a record belong to one thread at a time.
// Cost: a piece is copied once; a field that outgrows its room at least doubles it, so that a
//   stream costs time linear in its length whatever its pieces. A copy of a chart copies no
//   payload.
// Errors: std::bad_alloc and std::length_error, after which the chart is as before the call; and
//   those named below.
// REQUIRES: a piece `(data, length)` has `length` readable bytes at `data`. Bytes of value zero are
//   bytes like any other. With length 0 `data` may be null.

#ifndef OM_OUTPUT_OMCHART_H_
#define OM_OUTPUT_OMCHART_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "output/OmOutputPart.h"

namespace om::internal {

struct ChartRecord;
struct PartRecords;

}  // namespace om::internal

// What the XML of a chart contains. Producers and consumers may agree on further values.
enum ChartXMLContentSubType : std::int32_t { CHART_XML_PLAIN = 0 };

class OM_EXPORT OmChart : public OmOutputPart {
 public:
  // Whether, and with which program, the chart can be edited. Producers and consumers may agree on
  // further values.
  enum EDITABLE : std::int32_t { NOT_EDITABLE = 0, FULLY_EDITABLE = 1 };
  enum EDITOR : std::int32_t { NO_EDITOR = 0, STANDARD_EDITOR = 1 };

  // Views of the four strings of the map information.
  struct MapInfo {
    std::string_view first;
    std::string_view second;
    std::string_view third;
    std::string_view fourth;
  };

  // An empty chart. Unless the code page's name is empty, the label becomes a string cell with the
  // bytes that its string form has in the code page; where it cannot be converted (an unknown code
  // page, a character that it lacks), with its string form as it is. Throws also what cloning and
  // reading the label throw.
  OmChart(const OmCellText& label, const std::string& localeCodePage, long long chartId);
  OmChart(const OmChart&);
  OmChart& operator=(const OmChart&) = delete;
  ~OmChart() override;

  void Accept(Visitor& visitor) override;

  // ---- Delivery. Each `(data, length)` appends a piece to its field. The order of the virtual
  // functions is part of the library's binary interface.

  virtual void SetXmlDescription(const char* data, unsigned int length);
  // The length that the XML has once it is uncompressed; only kept.
  virtual void SetXmlUncompressedLength(unsigned int length);
  // Makes room for a description of this length, which changes nothing else.
  virtual void SetXmlCompressedLength(unsigned int length);
  virtual void SetBinaryDataStream(const char* data, unsigned int length);
  virtual void SetImageStream(const char* data, unsigned int length);
  virtual void SetViZJSON(const char* data, unsigned int length);
  virtual void SetImageSubType(ChartXMLContentSubType subType);
  // Ends the delivery. REQUIRES: at `info` stand two 32-bit numbers in the machine's byte order,
  // the value of EDITABLE and that of EDITOR. They need not be aligned.
  virtual void Done(const char* info);

  void SetMapInfo(const char* data, unsigned int length);
  void setVizJSONTemplate(const char* data, unsigned int length);
  void setGraphServiceOptions(const char* data, unsigned int length);
  void setGraphServiceVariables(const char* data, unsigned int length);
  // Replaces the options.
  void setOptions(const std::string& options);

  // Files: deliver a name, its content in pieces, the next name, and so on. A piece continues the
  // last content when there are as many contents as names, and otherwise begins another content;
  // so does each piece that comes before any name. An empty name and an empty content are entries.
  void addCSVFileName(const char* data, unsigned int length);
  void addCSVFileContent(const char* data, unsigned int length);
  void addGeoJSONFileName(const char* data, unsigned int length);
  void addGeoJSONFileContent(const char* data, unsigned int length);

  // Empties the data of SetBinaryDataStream, whose room is kept for more, and nothing else.
  void deleteData();

  // ---- Reading

  long long getChartId() const;
  const std::string& LocaleCodePage() const;
  const std::string& GetXmlDescription() const;
  const std::string& GetXmlData() const;  // of SetBinaryDataStream
  const std::string& GetImageData() const;
  const std::string& GetViZJSONData() const;
  const std::string& getVizJSONTemplate() const;
  const std::string& getOptions() const;
  const std::string& getGraphServiceOptions() const;
  const std::string& getGraphServiceVariables() const;
  ChartXMLContentSubType GetChartSubType() const;
  // NOT_EDITABLE and STANDARD_EDITOR before Done.
  EDITABLE GetEditable() const;
  EDITOR GetEditor() const;

  const std::vector<std::string>& getCSVFileNames() const;
  const std::vector<std::string>& getCSVFiles() const;
  const std::vector<std::string>& getGeoJSONFileNames() const;
  const std::vector<std::string>& getGeoJSONContent() const;
  // Whether there is a name; contents do not count.
  bool hasCSVFile() const;
  bool hasGeoJSONFile() const;

  bool hasMap() const;
  // Gives the four strings of the map information; changes nothing when there is none. The buffer
  // is not trusted: throws OMSException "OmChart::getMapInfo() -- length > remaining" with
  // (announced length, bytes left) where it is shorter than it announces; for a length, or the mark
  // before them, that is itself cut off, the first value is its width in bytes. After any error the
  // four strings are as before.
  void getMapInfo(std::string& first, std::string& second, std::string& third,
                  std::string& fourth) const;

  // ---- The same as views

  std::string_view viewXmlDescription() const;
  std::string_view viewXmlData() const;
  std::string_view viewImageData() const;
  std::string_view viewViZJSONData() const;
  std::string_view viewVizJSONTemplate() const;
  std::string_view viewGraphServiceOptions() const;
  std::string_view viewGraphServiceVariables() const;
  std::span<const std::string> viewCSVFileNames() const;
  std::span<const std::string> viewCSVFiles() const;
  std::span<const std::string> viewGeoJSONFileNames() const;
  std::span<const std::string> viewGeoJSONContent() const;
  // The buffer of SetMapInfo, and the four strings in it, empty when there is no map information.
  // Throws the OMSException of getMapInfo.
  std::string_view viewMapInfoBuffer() const;
  MapInfo viewMapInfo() const;

 private:
  friend struct om::internal::PartRecords;

  om::internal::ChartRecord* record_;
};

#endif  // OM_OUTPUT_OMCHART_H_
