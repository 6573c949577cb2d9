#include "pivot/FormatArea.h"

struct FormatArea::Attributes {
  explicit Attributes(Area of) : area(of) {}

  const Area area;
  std::string fontName;
  float fontSize = 0.0F;
  int fontStyle = -1;
  int marginLeft = 6;
  int marginRight = 2;
  int marginTop = 2;
  int marginBottom = 2;
  bool underline = false;
  int horizontalAlignment = -1;
  int verticalAlignment = -1;
  std::string textColor;
  std::string backgroundColor;
  bool useAltRowColors = false;
  std::string alternateTextColor;
  std::string alternateBackgroundColor;
};

FormatArea::FormatArea(Area area) : attributes_(new Attributes(area)) {}

FormatArea::~FormatArea() = default;

FormatArea::Area FormatArea::getArea() const { return attributes_->area; }

const std::string& FormatArea::getFontName() const { return attributes_->fontName; }

void FormatArea::setFontName(const std::string& name) { attributes_->fontName = name; }

float FormatArea::getFontSize() const { return attributes_->fontSize; }

void FormatArea::setFontSize(float size) { attributes_->fontSize = size; }

int FormatArea::getFontStyle() const { return attributes_->fontStyle; }

void FormatArea::setFontStyle(int style) { attributes_->fontStyle = style; }

int FormatArea::getMarginLeft() const { return attributes_->marginLeft; }

void FormatArea::setMarginLeft(int margin) { attributes_->marginLeft = margin; }

int FormatArea::getMarginRight() const { return attributes_->marginRight; }

void FormatArea::setMarginRight(int margin) { attributes_->marginRight = margin; }

int FormatArea::getMarginTop() const { return attributes_->marginTop; }

void FormatArea::setMarginTop(int margin) { attributes_->marginTop = margin; }

int FormatArea::getMarginBottom() const { return attributes_->marginBottom; }

void FormatArea::setMarginBottom(int margin) { attributes_->marginBottom = margin; }

bool FormatArea::getUnderline() const { return attributes_->underline; }

void FormatArea::setUnderline(bool underline) { attributes_->underline = underline; }

int FormatArea::getHorizontalAlignment() const { return attributes_->horizontalAlignment; }

void FormatArea::setHorizontalAlignment(int alignment) {
  attributes_->horizontalAlignment = alignment;
}

int FormatArea::getVerticalAlignment() const { return attributes_->verticalAlignment; }

void FormatArea::setVerticalAlignment(int alignment) { attributes_->verticalAlignment = alignment; }

const std::string& FormatArea::getTextColor() const { return attributes_->textColor; }

void FormatArea::setTextColor(const std::string& color) { attributes_->textColor = color; }

const std::string& FormatArea::getBackgroundColor() const { return attributes_->backgroundColor; }

void FormatArea::setBackgroundColor(const std::string& color) {
  attributes_->backgroundColor = color;
}

bool FormatArea::getUseAltRowColors() const { return attributes_->useAltRowColors; }

void FormatArea::setUseAltRowColors(bool use) { attributes_->useAltRowColors = use; }

const std::string& FormatArea::getAlternateTextColor() const {
  return attributes_->alternateTextColor;
}

void FormatArea::setAlternateTextColor(const std::string& color) {
  attributes_->alternateTextColor = color;
}

const std::string& FormatArea::getAlternateBackgroundColor() const {
  return attributes_->alternateBackgroundColor;
}

void FormatArea::setAlternateBackgroundColor(const std::string& color) {
  attributes_->alternateBackgroundColor = color;
}
