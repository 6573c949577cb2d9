// OmOutputPart: one labelled piece of output, the base of every kind that a document holds. Its
// visitor tells the kinds apart.
//
//   OmOutputPart
//   +- OmHeading              groups the parts below it
//   |  +- OmProcedure         the heading of one command's output
//   +- OmTextBlock            lines of text
//   |  +- OmPageTitle
//   +- OmChart, OmModel, OmInteractive, OmAnswerTree, OmPivotTable
//
// Ownership: a part owns a clone of its label, on the default heap. Parts are made with `new` and
//   handed to an OmOutputTree, which deletes them. A part does not know its place in the tree.
// Copies: copying a part is deliberately shallow, also by assignment: both then share the label
//   (and what the kind says that it shares), and each of them would delete it. Whoever copies a
//   part sees to it that only one of the two is ever destroyed. What a part shared or owned before
//   it was assigned to is not deleted. Charts, models, interactive outputs and answer trees count
//   the parts that share, so all copies of these may be destroyed; they cannot be assigned.
// Threads: a part belongs to one thread at a time.

#ifndef OM_OUTPUT_OMOUTPUTPART_H_
#define OM_OUTPUT_OMOUTPUTPART_H_

#include "backend/Export.h"
#include "external/cells/OmCellText.h"

class OmAnswerTree;
class OmChart;
class OmHeading;
class OmInteractive;
class OmModel;
class OmPageTitle;
class OmPivotTable;
class OmProcedure;
class OmTextBlock;

namespace om::internal {

class SharedRecord;

}  // namespace om::internal

class OM_EXPORT OmOutputPart {
 public:
  class Visitor;

  virtual ~OmOutputPart();

  // Calls exactly one visit of the visitor, the one of the part's own kind, with this part.
  virtual void Accept(Visitor& visitor) = 0;

  OmCellText& Label() { return *label_; }
  const OmCellText& Label() const { return *label_; }
  // Replaces the label by a clone of `label`, which may be the present one. Throws what Clone
  // throws; the part is then as before.
  void Label(const OmCellText& label);

  // Three values that the part carries along for its users and never reads: a pointer to anything,
  // not owned, and whether viewers show the part and what is below it.
  void* ClientData() const { return clientData_; }
  void ClientData(void* data) { clientData_ = data; }
  bool Visible() const { return visible_; }
  void Visible(bool visible) { visible_ = visible; }
  bool Expanded() const { return expanded_; }
  void Expanded(bool expanded) { expanded_ = expanded; }

 protected:
  // Throws what cloning the label throws.
  explicit OmOutputPart(const OmCellText& label);
  OmOutputPart(const OmOutputPart&);
  OmOutputPart& operator=(const OmOutputPart&);
  // A copy that shares `record` with its source. The record keeps the label, for all the parts that
  // show it. Throws std::bad_alloc; the source is then as before.
  OmOutputPart(const OmOutputPart& other, om::internal::SharedRecord& record);

  // Deletes the label and takes over another one, which is on the default heap.
  void adoptLabel(OmCellText* label) noexcept;

 private:
  OmCellText* label_;
  void* clientData_ = nullptr;
  bool visible_ = true;
  bool expanded_ = true;
  mutable bool ownsLabel_ = true;  // false while a record that copies share keeps the label
};

// The order of the visits is part of the library's binary interface. (One toolchain lays adjacent
// overloads out in reverse of their declaration: a build for it reverses the order here.)
class OM_EXPORT OmOutputPart::Visitor {
 public:
  virtual ~Visitor();
  virtual void Visit(OmInteractive& part) = 0;
  virtual void Visit(OmModel& part) = 0;
  virtual void Visit(OmAnswerTree& part) = 0;
  virtual void Visit(OmChart& part) = 0;
  // Visits the title as a text block, unless it is overridden.
  virtual void Visit(OmPageTitle& part);
  virtual void Visit(OmTextBlock& part) = 0;
  virtual void Visit(OmHeading& part) = 0;
  // Visits the procedure as a heading, unless it is overridden.
  virtual void Visit(OmProcedure& part);
  virtual void Visit(OmPivotTable& part) = 0;
};

#endif  // OM_OUTPUT_OMOUTPUTPART_H_
