# The writer of HTML pages.

target_sources(om-render-objects PRIVATE
  ${PROJECT_SOURCE_DIR}/render/HtmlWriter.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/HtmlChooser.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/HtmlHeadings.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/HtmlNotes.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/HtmlOut.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/HtmlTable.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/Sha256.cpp)
