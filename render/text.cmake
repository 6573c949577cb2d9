# The writer of plain text. utf8proc tells where characters end and how wide they are.

find_package(PkgConfig REQUIRED)
pkg_check_modules(UTF8PROC REQUIRED IMPORTED_TARGET libutf8proc)
target_sources(om-render-objects PRIVATE
  ${PROJECT_SOURCE_DIR}/render/TextWriter.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/DisplayWidth.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/NumberText.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/PlainText.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/RowLabels.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/ShownText.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/TextGrid.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/TextLayout.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/TextLines.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/TextPage.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/TextTable.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/Wrapping.cpp)
target_link_libraries(om-render-objects PRIVATE PkgConfig::UTF8PROC)
list(APPEND OM_RENDER_LIBRARIES PkgConfig::UTF8PROC)
