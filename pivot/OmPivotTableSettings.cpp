// The settings of a table, its trackers, and the way in which texts get them.

#include <memory>
#include <utility>

#include "backend/tables/om/VectorTree.h"
#include "external/cells/OmDateCell.h"
#include "external/cells/OmMessageCell.h"
#include "external/cells/OmNumber.h"
#include "external/cells/OmStringCell.h"
#include "external/cells/OmValueCell.h"
#include "external/cells/OmVariableCell.h"
#include "pivot/OmPivotTable.h"
#include "pivot/internal/PivotTableData.h"

OmPivotTable::ICUHelper::ICUHelper() = default;

OmPivotTable::ICUHelper::~ICUHelper() = default;

void OmPivotTable::ICUHelper::Visit(OmMessageCell& text) {
  text.setTracker(tracker_);
  icuTracker* const held = text.getTracker();
  text.Pattern().setTracker(held);
  for (const std::unique_ptr<OmCellText>& argument : text.Arguments()) argument->setTracker(held);
}

void OmPivotTable::ICUHelper::Visit(OmStringCell& text) { text.setTracker(tracker_); }

void OmPivotTable::ICUHelper::Visit(OmNumber& text) { text.setTracker(tracker_); }

void OmPivotTable::ICUHelper::Visit(OmVariableCell& text) { text.setTracker(tracker_); }

void OmPivotTable::ICUHelper::Visit(OmValueCell& text) { text.setTracker(tracker_); }

void OmPivotTable::ICUHelper::Visit(OmDateCell& text) { text.setTracker(tracker_); }

void OmPivotTable::ICUHelper::Visit(OmComposite&) {}

// All that may fail comes before the first change.
void OmPivotTable::setBackendSettings(const BackendSettings& settings) {
  Data& my = *_my;
  const bool fast = settings.getFastTables();
  if (!fast || my.tracker != nullptr) {
    my.settings = settings;
    my.fastTable = fast;
    return;
  }

  const bool unicode = settings.getUnicode();
  auto tracker = std::make_unique<icuTracker>(std::pair(unicode, settings.getLocale()));
  std::unique_ptr<icuTracker> utf8Tracker;
  if (!unicode) {
    utf8Tracker = std::make_unique<icuTracker>(std::pair(true, settings.getLocale()));
  }
  std::vector<OmCellText*> texts{&Label(), my.templateName.get(), my.tableTitle.get()};
  for (OmDimension* const dimension : my.dimensions) {
    OmDimension::Tree::Walk(dimension->Root(), [&texts](const OmDimension::Node& node) {
      texts.push_back(node->Text());
      return true;
    });
  }
  for (OmFootnote& footnote : my.footnotes) {
    texts.push_back(footnote.Text());
    texts.push_back(footnote.Marker());
  }

  my.settings = settings;
  my.fastTable = fast;
  my.tracker = tracker.release();
  my.utf8Tracker = unicode ? my.tracker : utf8Tracker.release();
  my.helper.Tracker(my.tracker);
  for (OmCellText* const text : texts) {
    if (text != nullptr) setHelper(*text);
  }
}

BackendSettings& OmPivotTable::getBackendSettings() const { return _my->settings; }

bool OmPivotTable::fastTable() const { return _my->fastTable; }

void OmPivotTable::setFastTable(bool fast) { _my->fastTable = fast; }

icuTracker* OmPivotTable::getICUTracker() const { return _my->tracker; }

icuTracker* OmPivotTable::getU8Tracker() const { return _my->utf8Tracker; }

void OmPivotTable::setHelper(OmCellText& text) {
  if (_my->helper.Tracker() != nullptr) text.Accept(_my->helper);
}
