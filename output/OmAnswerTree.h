// OmAnswerTree: a decision tree as its procedure delivers it, in XML that may be compressed. The
// library stores these payloads and gives them back byte for byte.
//
// Ownership, lifetime, threads, cost, errors and pieces `(data, length)`: as for OmChart, whose
//   copies share a record in the same way. The code page alone is not the answer tree's own.

#ifndef OM_OUTPUT_OMANSWERTREE_H_
#define OM_OUTPUT_OMANSWERTREE_H_

#include <string>
#include <string_view>

#include "output/OmOutputPart.h"

namespace om::internal {

struct AnswerTreeRecord;
struct PartRecords;

}  // namespace om::internal

class OM_EXPORT OmAnswerTree : public OmOutputPart {
 public:
  // An empty answer tree of type -1. It refers to `codePage` itself, which it does not copy and
  // never reads. Throws also what cloning the label throws. REQUIRES: `codePage` lives as long as
  // the answer tree and its copies.
  OmAnswerTree(const OmCellText& label, const std::string& codePage);
  OmAnswerTree(const OmAnswerTree&);
  OmAnswerTree& operator=(const OmAnswerTree&) = delete;
  ~OmAnswerTree() override;

  void Accept(Visitor& visitor) override;

  // What the types mean is between producers and consumers. The order of the virtual functions is
  // part of the library's binary interface.
  virtual void SetTreeType(int type);
  // Each `(data, length)` appends a piece to its field.
  virtual void SetPath(const char* data, unsigned int length);
  // `uncompressedLength` is that of the whole XML; the last one that is given counts.
  virtual void SetCompressedXML(const char* data, unsigned int length,
                                unsigned int uncompressedLength);
  virtual void SetUncompressedXML(const char* data, unsigned int length);
  virtual void SetUncompressedDisplayXML(const char* data, unsigned int length);
  // For producers that signal the end of delivery; does nothing.
  virtual void Done();

  int GetTreeType() const;
  const std::string& GetPath() const;
  const std::string& GetCompressedXml() const;
  unsigned int GetXmlUncompressedLength() const;
  const std::string& GetUncompressedXml() const;
  const std::string& GetUncompressedDisplayXML() const;

  // The same as views.
  std::string_view viewPath() const;
  std::string_view viewCompressedXml() const;
  std::string_view viewUncompressedXml() const;
  std::string_view viewUncompressedDisplayXML() const;

 private:
  friend struct om::internal::PartRecords;

  om::internal::AnswerTreeRecord* record_;
};

#endif  // OM_OUTPUT_OMANSWERTREE_H_
