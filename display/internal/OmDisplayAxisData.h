// OmDisplayAxisData: the state of a column or row heading. What is a column to the one is a row to
// the other; here it is a place. The labels of a place stand on levels, from the outermost on.

#ifndef OM_DISPLAY_INTERNAL_OMDISPLAYAXISDATA_H_
#define OM_DISPLAY_INTERNAL_OMDISPLAYAXISDATA_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "display/internal/OmDisplayLayerData.h"

namespace om::internal {

class OmDisplayAxisData {
 public:
  using ConstNode = OmDisplayLayerHeading::ConstNode;

  // `own` is the table's list of the axis, `other` that of the axis across.
  OmDisplayAxisData(OmDisplayLayerData& layerHeading, bool skip, bool namesInCorner,
                    const PuppetVector<short>& own, const PuppetVector<short>& other);
  OmDisplayAxisData(const OmDisplayAxisData&) = delete;
  OmDisplayAxisData& operator=(const OmDisplayAxisData&) = delete;

  // The last step of building a row heading.
  void enterCornerTexts();

  // Below, `place` and `level` count from 0 in what is shown. Beyond that there are no labels.

  // The number of levels of one dimension; 0 beyond the end.
  int levelsAt(int headingPosition) const;

  // The labels of a place: totalLevels entries. The label of each place on a level: positionCount.
  std::deque<ConstNode*> labels(int place) const;
  std::deque<ConstNode*> labelsOnLevel(int level) const;
  // The category of each dimension.
  std::deque<ConstNode*> categories(int place) const;
  void fill(std::vector<int>& index, int place) const;

  // Append whole paths, or both ends of each path, where the path is not of a root alone.
  void appendPaths(int place, std::vector<ConstNode*>& out) const;
  void appendEnds(int place, std::vector<ConstNode*>& roots, std::vector<ConstNode*>& leaves) const;

  const std::vector<unsigned long long>& shownPositions();

  OmDisplayLayerData& layers;
  OmPivotTable* const table;
  const bool skipEmpty;
  const bool dimNamesInCorner;
  PuppetVector<short> axisDimensions;
  std::vector<const OmCellText*> cornerTexts;
  std::vector<unsigned long long> nonEmpty;
  AxisIndex positionIndex;
  std::vector<std::uint16_t> levels;
  std::uint64_t positionCount;
  std::uint32_t totalLevels = 0;

 private:
  // What a dimension contributes to the labels of a place.
  struct Block {
    std::size_t firstLabel;  // 1 when the root's label stands in the corner
    std::size_t firstLevel;
  };

  std::uint16_t countLevels(std::size_t k) const;
  bool enterNames();

  bool positionOf(int place, std::uint64_t& position) const;

  std::vector<Block> blocks_;
};

}  // namespace om::internal

#endif  // OM_DISPLAY_INTERNAL_OMDISPLAYAXISDATA_H_
