// The fields of each kind of part that producers stream into, under one way of using them.

#ifndef OM_TESTS_OUTPUT_PAYLOADFIELDS_H_
#define OM_TESTS_OUTPUT_PAYLOADFIELDS_H_

#include <string>
#include <string_view>

#include "output/OmAnswerTree.h"
#include "output/OmChart.h"
#include "output/OmInteractive.h"
#include "output/OmModel.h"

namespace om::test {

template <class Part>
struct PayloadField {
  const char* name;
  void (*append)(Part& part, const char* data, unsigned length);
  std::string_view (Part::*view)() const;
  const std::string& (Part::*get)() const;  // null for the map information, which has no getter
};

template <auto Setter, class Part>
void appendBy(Part& part, const char* data, unsigned length) {
  (part.*Setter)(data, length);
}

inline void appendCompressedXml(OmAnswerTree& tree, const char* data, unsigned length) {
  tree.SetCompressedXML(data, length, 0);
}

template <class Part>
struct PayloadsOf;

template <>
struct PayloadsOf<OmChart> {
  static constexpr PayloadField<OmChart> fields[] = {
      {"XML description", appendBy<&OmChart::SetXmlDescription>, &OmChart::viewXmlDescription,
       &OmChart::GetXmlDescription},
      {"XML data", appendBy<&OmChart::SetBinaryDataStream>, &OmChart::viewXmlData,
       &OmChart::GetXmlData},
      {"image data", appendBy<&OmChart::SetImageStream>, &OmChart::viewImageData,
       &OmChart::GetImageData},
      {"visualisation JSON", appendBy<&OmChart::SetViZJSON>, &OmChart::viewViZJSONData,
       &OmChart::GetViZJSONData},
      {"map information", appendBy<&OmChart::SetMapInfo>, &OmChart::viewMapInfoBuffer, nullptr},
      {"template", appendBy<&OmChart::setVizJSONTemplate>, &OmChart::viewVizJSONTemplate,
       &OmChart::getVizJSONTemplate},
      {"graph service options", appendBy<&OmChart::setGraphServiceOptions>,
       &OmChart::viewGraphServiceOptions, &OmChart::getGraphServiceOptions},
      {"graph service variables", appendBy<&OmChart::setGraphServiceVariables>,
       &OmChart::viewGraphServiceVariables, &OmChart::getGraphServiceVariables}};
};

template <>
struct PayloadsOf<OmModel> {
  static constexpr PayloadField<OmModel> fields[] = {
      {"PMML", appendBy<&OmModel::SetPMML>, &OmModel::viewPMML, &OmModel::GetPMML},
      {"binary data stream", appendBy<&OmModel::SetBinaryDataStream>,
       &OmModel::viewBinaryDataStream, &OmModel::GetBinaryDataStream},
      {"PMML container", appendBy<&OmModel::SetPMMLContainer>, &OmModel::viewPMMLContainer,
       &OmModel::GetPMMLContainer},
      {"StatXML container", appendBy<&OmModel::SetStatXMLContainer>, &OmModel::viewStatXMLContainer,
       &OmModel::GetStatXMLContainer}};
};

template <>
struct PayloadsOf<OmInteractive> {
  static constexpr PayloadField<OmInteractive> fields[] = {
      {"interactive JSON", appendBy<&OmInteractive::setInteractiveJSON>,
       &OmInteractive::viewInteractiveJSON, &OmInteractive::getInteractiveJSON}};
};

template <>
struct PayloadsOf<OmAnswerTree> {
  static constexpr PayloadField<OmAnswerTree> fields[] = {
      {"path", appendBy<&OmAnswerTree::SetPath>, &OmAnswerTree::viewPath, &OmAnswerTree::GetPath},
      {"compressed XML", appendCompressedXml, &OmAnswerTree::viewCompressedXml,
       &OmAnswerTree::GetCompressedXml},
      {"uncompressed XML", appendBy<&OmAnswerTree::SetUncompressedXML>,
       &OmAnswerTree::viewUncompressedXml, &OmAnswerTree::GetUncompressedXml},
      {"uncompressed display XML", appendBy<&OmAnswerTree::SetUncompressedDisplayXML>,
       &OmAnswerTree::viewUncompressedDisplayXML, &OmAnswerTree::GetUncompressedDisplayXML}};
};

}  // namespace om::test

#endif  // OM_TESTS_OUTPUT_PAYLOADFIELDS_H_
