// OmTextBlock: plain lines of text, such as the log of the commands that were run or a message left
// where output was removed.
//
// Ownership: the lines and the code page are the block's own, also in a copy; the label is shared
// by copies: see OmOutputPart.

#ifndef OM_OUTPUT_OMTEXTBLOCK_H_
#define OM_OUTPUT_OMTEXTBLOCK_H_

#include <list>
#include <string>

#include "output/OmOutputPart.h"

class OM_EXPORT OmTextBlock : public OmOutputPart {
 public:
  // A block without lines. Throws std::bad_alloc and what cloning the label throws.
  OmTextBlock(const OmCellText& label, const std::string& localeCodePage);
  OmTextBlock(const OmTextBlock&);
  OmTextBlock& operator=(const OmTextBlock&);
  ~OmTextBlock() override;

  void Accept(Visitor& visitor) override;

  // The lines, one element each, for callers to fill and read.
  std::list<std::string>& TextList() { return textList_; }
  const std::list<std::string>& TextList() const { return textList_; }
  // The number of lines.
  unsigned long long Size() const { return textList_.size(); }

  // Whether the label's string form was exactly "Log" when the block was made.
  bool IsLog() const { return isLog_; }
  const std::string& LocaleCodePage() const { return localeCodePage_; }

 private:
  OmTextBlock(const OmTextBlock& other, std::list<std::string> textList,
              std::string localeCodePage) noexcept;

  std::list<std::string> textList_;
  bool isLog_;
  std::string localeCodePage_;
};

#endif  // OM_OUTPUT_OMTEXTBLOCK_H_
