# The writers of records. scripts/check-jsonstat and scripts/check-xlsx read back what
# render-records writes.

find_package(nlohmann_json 3 REQUIRED)
target_link_libraries(render-tests PRIVATE nlohmann_json::nlohmann_json)
target_sources(render-tests PRIVATE
  CellTextTest.cpp CsvFieldTest.cpp CsvWriterTest.cpp JsonEmitterTest.cpp JsonStatWriterTest.cpp
  JsonWriterTest.cpp RecordsFailureTest.cpp XlsxTextTest.cpp)
if(OM_RENDER_HAS_XLSX)
  target_sources(render-tests PRIVATE XlsxWriterTest.cpp)
else()
  target_sources(render-tests PRIVATE XlsxMissingTest.cpp)
endif()

add_executable(render-records make_records.cpp)
target_link_libraries(render-records PRIVATE om-render om-build-options)
