// FormatArea: how one area of a pivot table is to be drawn. The table keeps one for each area and
// hands it to viewers; nothing here is applied or interpreted.
//
// Ownership: a plain object; once given to OmPivotTable::setAreaFormat it belongs to the table.
// Threads: one at a time.

#ifndef OM_PIVOT_FORMATAREA_H_
#define OM_PIVOT_FORMATAREA_H_

#include <cstdint>
#include <memory>
#include <string>

#include "backend/Export.h"

class OM_EXPORT FormatArea {
 public:
  // What a producer and its viewers agree to call the areas; a table serves 0 to 8.
  enum Area : std::int32_t {
    TITLE = 0,
    CAPTION = 1,
    FOOTNOTES = 2,
    CORNER = 3,
    ROW_LABELS = 4,
    COLUMN_LABELS = 5,
    LAYERS = 6,
    DATA = 7,
    DIMENSION_NAMES = 8
  };

  // Empty names and colours, size 0, margins 6, 2, 2, 2 and -1, "not set", for style and
  // alignments.
  explicit FormatArea(Area area);
  FormatArea(const FormatArea&) = delete;
  FormatArea& operator=(const FormatArea&) = delete;
  ~FormatArea();

  Area getArea() const;

  const std::string& getFontName() const;
  void setFontName(const std::string& name);
  // In points.
  float getFontSize() const;
  void setFontSize(float size);
  int getFontStyle() const;
  void setFontStyle(int style);
  bool getUnderline() const;
  void setUnderline(bool underline);

  // In points. (The left margin is wider from the start, on purpose.)
  int getMarginLeft() const;
  void setMarginLeft(int margin);
  int getMarginRight() const;
  void setMarginRight(int margin);
  int getMarginTop() const;
  void setMarginTop(int margin);
  int getMarginBottom() const;
  void setMarginBottom(int margin);

  int getHorizontalAlignment() const;
  void setHorizontalAlignment(int alignment);
  int getVerticalAlignment() const;
  void setVerticalAlignment(int alignment);

  // Colours are texts that nothing here reads.
  const std::string& getTextColor() const;
  void setTextColor(const std::string& color);
  const std::string& getBackgroundColor() const;
  void setBackgroundColor(const std::string& color);
  bool getUseAltRowColors() const;
  void setUseAltRowColors(bool use);
  const std::string& getAlternateTextColor() const;
  void setAlternateTextColor(const std::string& color);
  const std::string& getAlternateBackgroundColor() const;
  void setAlternateBackgroundColor(const std::string& color);

 private:
  struct Attributes;

  std::unique_ptr<Attributes> attributes_;
};

#endif  // OM_PIVOT_FORMATAREA_H_
