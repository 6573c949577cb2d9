# om-render: the grid view of a table and the writers, over the public interface of om. Its sources
# are compiled once, for the shared library and for the archive that the tests look into.

find_package(Iconv REQUIRED)

set(OM_RENDER_HEADERS
  render/CsvWriter.h render/DocumentWalk.h render/Export.h render/FootnoteMarks.h
  render/HeadingGrid.h render/HtmlWriter.h render/JsonStatWriter.h render/JsonWriter.h
  render/TableOptions.h render/TableView.h render/TextWriter.h render/XlsxWriter.h)
list(TRANSFORM OM_RENDER_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/)

add_library(om-render-objects OBJECT
  render/DocumentWalk.cpp render/FootnoteMarks.cpp render/HeadingGrid.cpp render/TableOptions.cpp
  render/TableView.cpp render/internal/Utf8.cpp)
om_library_properties(om-render-objects)
target_compile_definitions(om-render-objects PRIVATE OM_RENDER_BUILDING)
target_link_libraries(om-render-objects PUBLIC om-build-options om-cells om-settings om-platform)
foreach(writers text html records)
  include(${PROJECT_SOURCE_DIR}/render/${writers}.cmake)
endforeach()

add_library(om-render SHARED)
add_library(om::render ALIAS om-render)
om_library_properties(om-render)
target_sources(om-render PRIVATE $<TARGET_OBJECTS:om-render-objects>
               PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${OM_RENDER_HEADERS})
target_compile_features(om-render PUBLIC cxx_std_20)
target_link_libraries(om-render PUBLIC om PRIVATE Iconv::Iconv ${OM_RENDER_LIBRARIES}
                                $<BUILD_INTERFACE:om-build-options>)
set_target_properties(om-render PROPERTIES LINKER_LANGUAGE CXX EXPORT_NAME render
                                           INSTALL_RPATH "${OM_INSTALL_RPATH}")
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(OM_RENDER_EXPORT_MAP ${PROJECT_SOURCE_DIR}/cmake/om-render.map)
  target_link_options(om-render PRIVATE "LINKER:--version-script=${OM_RENDER_EXPORT_MAP}")
  set_target_properties(om-render PROPERTIES LINK_DEPENDS ${OM_RENDER_EXPORT_MAP})
endif()

if(OM_BUILD_TESTS)
  add_library(om-render-static STATIC $<TARGET_OBJECTS:om-render-objects>)
  target_link_libraries(om-render-static PUBLIC om-static Iconv::Iconv ${OM_RENDER_LIBRARIES})
  set_target_properties(om-render-static PROPERTIES LINKER_LANGUAGE CXX)
endif()
