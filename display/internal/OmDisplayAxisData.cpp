#include "display/internal/OmDisplayAxisData.h"

#include <algorithm>
#include <numeric>

#include "display/internal/EmptinessScan.h"

namespace om::internal {

OmDisplayAxisData::OmDisplayAxisData(OmDisplayLayerData& layerHeading, bool skip,
                                     bool namesInCorner, const PuppetVector<short>& own,
                                     const PuppetVector<short>& other)
    : layers(layerHeading),
      table(layerHeading.table),
      skipEmpty(skip),
      dimNamesInCorner(namesInCorner),
      axisDimensions(own) {
  axisDimensions.reverse();
  positionIndex = AxisIndex(axisDimensions, table->SizeVector(), layers.layouts);
  if (skipEmpty) nonEmpty = nonEmptyPositions(layers, positionIndex, other);
  positionCount = skipEmpty ? nonEmpty.size() : positionIndex.count();

  for (std::size_t k = 0; k < positionIndex.size(); ++k) {
    const OmDimensionLayout* const layout = positionIndex.layout(k);
    const bool inCorner = dimNamesInCorner && layout != nullptr && layout->rootIsLabel();
    blocks_.push_back({inCorner ? std::size_t{1} : 0, totalLevels});
    levels.push_back(countLevels(k));
    totalLevels += levels.back();
  }
}

// The largest number of labels of a category shown, but for the one that stands in the corner.
std::uint16_t OmDisplayAxisData::countLevels(std::size_t k) const {
  const OmDimensionLayout* const layout = positionIndex.layout(k);
  if (layout == nullptr) return 0;
  int most = nonEmpty.empty() ? layout->maxVisibleDepth() : 0;
  for (const unsigned long long position : nonEmpty) {
    const std::uint64_t leaf = positionIndex.digit(position, k);
    if (leaf < layout->size()) most = std::max<int>(most, layout->visibleDepth(leaf));
    if (most == layout->maxVisibleDepth()) break;
  }
  return static_cast<std::uint16_t>(most != 0 ? most - static_cast<int>(blocks_[k].firstLabel) : 0);
}

void OmDisplayAxisData::enterCornerTexts() {
  const bool named = dimNamesInCorner && enterNames();
  if (positionCount == 0 || named) return;
  cornerTexts.resize(totalLevels);
  if (totalLevels != 0) cornerTexts.front() = table->CornerText();
}

// Whether a name was placed. The names are those of the first position, deliberately also when it
// is empty and skipped.
bool OmDisplayAxisData::enterNames() {
  bool named = false;
  for (std::size_t k = 0; k < blocks_.size(); ++k) {
    const OmDimensionLayout* const layout = positionIndex.layout(k);
    if (layout == nullptr || layout->size() == 0) continue;
    const std::size_t begin = cornerTexts.size();
    cornerTexts.resize(begin + levels[k]);
    const OmDimensionNode& root = *layout->root()->node;
    if (levels[k] == 0 || root.Hide()) continue;
    cornerTexts[begin] = root.Text();
    named |= root.Text() != nullptr;
  }
  return named;
}

int OmDisplayAxisData::levelsAt(int headingPosition) const {
  const auto k = static_cast<std::size_t>(headingPosition);
  return k < levels.size() ? levels[k] : 0;
}

// False when there is no such place.
bool OmDisplayAxisData::positionOf(int place, std::uint64_t& position) const {
  position = static_cast<std::uint64_t>(place);
  if (position >= positionCount) return false;
  if (skipEmpty) position = nonEmpty[position];
  return true;
}

std::deque<OmDisplayAxisData::ConstNode*> OmDisplayAxisData::labels(int place) const {
  std::deque<ConstNode*> result(totalLevels);
  std::uint64_t position = 0;
  if (!positionOf(place, position)) return result;
  positionIndex.visitLeaves(
      position, [&](std::size_t k, const OmDimensionLayout& layout, std::size_t leaf) {
        const Block& block = blocks_[k];
        for (std::size_t level = 0; level < levels[k]; ++level) {
          result[block.firstLevel + level] = layout.label(leaf, block.firstLabel + level);
        }
      });
  return result;
}

std::deque<OmDisplayAxisData::ConstNode*> OmDisplayAxisData::labelsOnLevel(int level) const {
  std::deque<ConstNode*> result(positionCount);
  const auto on = static_cast<std::size_t>(level);
  if (on >= totalLevels) return result;
  std::size_t k = 0;
  while (on >= blocks_[k].firstLevel + levels[k]) ++k;
  const OmDimensionLayout& layout = *positionIndex.layout(k);
  const std::size_t label = on - blocks_[k].firstLevel + blocks_[k].firstLabel;
  const auto labelOf = [&](std::uint64_t leaf) {
    return leaf < layout.size() ? layout.label(leaf, label) : nullptr;
  };

  auto out = result.begin();
  if (skipEmpty) {
    for (const unsigned long long position : nonEmpty) {
      *out++ = labelOf(positionIndex.digit(position, k));
    }
    return result;
  }
  const auto radix = static_cast<std::uint64_t>(positionIndex.radix(k));
  const auto repeats = static_cast<std::ptrdiff_t>(positionIndex.weight(k));
  while (out != result.end()) {
    for (std::uint64_t leaf = 0; leaf != radix; ++leaf) {
      out = std::fill_n(out, repeats, labelOf(leaf));
    }
  }
  return result;
}

std::deque<OmDisplayAxisData::ConstNode*> OmDisplayAxisData::categories(int place) const {
  std::deque<ConstNode*> result(blocks_.size());
  std::uint64_t position = 0;
  if (!positionOf(place, position)) return result;
  positionIndex.visitLeaves(position,
                            [&](std::size_t k, const OmDimensionLayout& layout, std::size_t leaf) {
                              result[k] = &layout.path(leaf)->node;
                            });
  return result;
}

void OmDisplayAxisData::fill(std::vector<int>& index, int place) const {
  std::uint64_t position = 0;
  if (positionOf(place, position)) {
    positionIndex.fill(position, index);
  } else {
    index.resize(layers.layouts.size());
  }
}

void OmDisplayAxisData::appendPaths(int place, std::vector<ConstNode*>& out) const {
  std::uint64_t position = 0;
  positionOf(place, position);
  positionIndex.visitLeaves(position,
                            [&](std::size_t, const OmDimensionLayout& layout, std::size_t leaf) {
                              if (layout.isBelowRoot(leaf)) layout.appendPath(leaf, out);
                            });
}

void OmDisplayAxisData::appendEnds(int place, std::vector<ConstNode*>& roots,
                                   std::vector<ConstNode*>& leaves) const {
  std::uint64_t position = 0;
  positionOf(place, position);
  positionIndex.visitLeaves(position,
                            [&](std::size_t, const OmDimensionLayout& layout, std::size_t leaf) {
                              if (!layout.isBelowRoot(leaf)) return;
                              roots.push_back(&layout.root()->node);
                              leaves.push_back(&layout.path(leaf)->node);
                            });
}

const std::vector<unsigned long long>& OmDisplayAxisData::shownPositions() {
  if (!skipEmpty && nonEmpty.empty()) {
    std::vector<unsigned long long> all(positionCount);
    std::iota(all.begin(), all.end(), 0ULL);
    nonEmpty = std::move(all);
  }
  return nonEmpty;
}

}  // namespace om::internal
