// OmPageTitle: a text block whose lines are the title of a page. Its label is empty.

#ifndef OM_OUTPUT_OMPAGETITLE_H_
#define OM_OUTPUT_OMPAGETITLE_H_

#include <string>

#include "output/OmTextBlock.h"

class OM_EXPORT OmPageTitle : public OmTextBlock {
 public:
  explicit OmPageTitle(const std::string& localeCodePage);
  OmPageTitle(const OmPageTitle&);
  OmPageTitle& operator=(const OmPageTitle&);
  ~OmPageTitle() override;

  void Accept(Visitor& visitor) override;
};

#endif  // OM_OUTPUT_OMPAGETITLE_H_
