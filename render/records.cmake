# The writers of records: CSV, JSON, JSON-stat, and workbooks where the library for them is there.

target_sources(om-render-objects PRIVATE
  ${PROJECT_SOURCE_DIR}/render/CsvWriter.cpp
  ${PROJECT_SOURCE_DIR}/render/JsonStatWriter.cpp
  ${PROJECT_SOURCE_DIR}/render/JsonWriter.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/CellText.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/CsvDimension.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/CsvField.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/JsonEmitter.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/JsonPlaces.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/JsonStatDataset.cpp
  ${PROJECT_SOURCE_DIR}/render/internal/JsonTable.cpp)

option(OM_XLSX "Write workbooks, where libxlsxwriter is found" ON)
if(OM_XLSX)
  find_path(OM_XLSXWRITER_INCLUDE xlsxwriter.h)
  find_library(OM_XLSXWRITER_LIBRARY xlsxwriter)
  mark_as_advanced(OM_XLSXWRITER_INCLUDE OM_XLSXWRITER_LIBRARY)
endif()
target_sources(om-render-objects PRIVATE ${PROJECT_SOURCE_DIR}/render/internal/XlsxText.cpp)
if(OM_XLSX AND OM_XLSXWRITER_INCLUDE AND OM_XLSXWRITER_LIBRARY)
  target_sources(om-render-objects PRIVATE
    ${PROJECT_SOURCE_DIR}/render/XlsxWriter.cpp
    ${PROJECT_SOURCE_DIR}/render/internal/Workbook.cpp)
  target_include_directories(om-render-objects SYSTEM PRIVATE ${OM_XLSXWRITER_INCLUDE})
  list(APPEND OM_RENDER_LIBRARIES ${OM_XLSXWRITER_LIBRARY})
  set(OM_RENDER_HAS_XLSX ON)
else()
  message(STATUS "om-render: no workbooks, libxlsxwriter is not used")
  target_sources(om-render-objects PRIVATE ${PROJECT_SOURCE_DIR}/render/internal/XlsxMissing.cpp)
  set(OM_RENDER_HAS_XLSX OFF)
endif()
