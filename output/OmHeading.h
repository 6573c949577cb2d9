// OmHeading: a part that stands over the parts below it in the tree, with a list of footnotes.
//
// Ownership: the heading owns its footnotes, which live on the default heap. Copies share label and
// footnotes with their source: see OmOutputPart.

#ifndef OM_OUTPUT_OMHEADING_H_
#define OM_OUTPUT_OMHEADING_H_

#include "backend/tables/OmFootnote.h"
#include "backend/tables/OmVector.h"
#include "output/OmOutputPart.h"

class OM_EXPORT OmHeading : public OmOutputPart {
 public:
  // A heading without footnotes. Throws std::bad_alloc and what cloning the label throws.
  explicit OmHeading(const OmCellText& label);
  OmHeading(const OmHeading&);
  OmHeading& operator=(const OmHeading&);
  ~OmHeading() override;

  void Accept(Visitor& visitor) override;

  OmVector<OmFootnote>& Footnotes() { return *footnotes_; }
  const OmVector<OmFootnote>& Footnotes() const { return *footnotes_; }

 private:
  OmVector<OmFootnote>* footnotes_;
};

#endif  // OM_OUTPUT_OMHEADING_H_
