# The library. Its sources are compiled once, into an object library; from it come the shared library
# that is shipped and, for the tests that look inside, a static archive.

set(OM_HEADERS
  backend/Assert.h backend/Export.h backend/LibraryEntry.h backend/OMSException.h
  backend/tables/ListTree.h backend/tables/OmFootnote.h backend/tables/OmVector.h
  backend/tables/PuppetVector.h backend/tables/om/VectorTree.h
  dimensions/OmDimension.h dimensions/OmDimensionNode.h
  display/OmDisplayColumnHeading.h display/OmDisplayLayerHeading.h display/OmDisplayRowHeading.h
  output/OmAnswerTree.h output/OmChart.h output/OmHeading.h output/OmInteractive.h output/OmModel.h
  output/OmOutputPart.h output/OmOutputTree.h output/OmOutputWalker.h output/OmPageTitle.h
  output/OmProcedure.h output/OmTextBlock.h output/OmUtility.h
  pivot/FormatArea.h pivot/OmPivotTable.h pivot/OmTableFinding.h)
list(TRANSFORM OM_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/)

add_library(om-objects OBJECT
  backend/Assert.cpp backend/LibraryEntry.cpp backend/OMSException.cpp
  backend/tables/MultiBase.cpp backend/tables/OmFootnote.cpp
  dimensions/OmDimension.cpp dimensions/OmDimensionEdit.cpp dimensions/OmDimensionNode.cpp
  display/OmDisplayColumnHeading.cpp display/OmDisplayLayerHeading.cpp
  display/OmDisplayRowHeading.cpp display/internal/AxisIndex.cpp display/internal/DenseScan.cpp
  display/internal/EmptinessScan.cpp display/internal/OmDimensionLayout.cpp
  display/internal/OmDisplayAxisData.cpp display/internal/OmDisplayLayerData.cpp
  display/internal/SparseScan.cpp
  output/OmAnswerTree.cpp output/OmChart.cpp output/OmChartReading.cpp output/OmHeading.cpp
  output/OmInteractive.cpp output/OmModel.cpp output/OmOutputPart.cpp output/OmOutputTree.cpp
  output/OmOutputWalker.cpp output/OmPageTitle.cpp output/OmProcedure.cpp output/OmTextBlock.cpp
  output/OmUtility.cpp output/internal/LabelEncoding.cpp output/internal/MapInfo.cpp
  pivot/FormatArea.cpp pivot/OmPivotTable.cpp pivot/OmPivotTableCells.cpp
  pivot/OmPivotTableFootnotes.cpp pivot/OmPivotTablePrint.cpp pivot/OmPivotTableProperties.cpp
  pivot/OmPivotTableSettings.cpp pivot/OmPivotTableValidate.cpp pivot/OmTableFinding.cpp
  pivot/internal/CellIteration.cpp pivot/internal/CellStore.cpp pivot/internal/PointerVector.cpp)
om_library_properties(om-objects)
target_compile_definitions(om-objects PRIVATE OM_BUILDING)
target_link_libraries(om-objects PUBLIC om-build-options om-cells om-settings om-platform om-blocks)

set(OM_EXPORT_MAP ${PROJECT_SOURCE_DIR}/cmake/om.map)
add_library(om SHARED)
add_library(om::om ALIAS om)
om_library_properties(om)
target_sources(om PRIVATE $<TARGET_OBJECTS:om-objects>
               PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${OM_HEADERS})
target_compile_features(om PUBLIC cxx_std_20)
target_link_libraries(om PUBLIC om-cells om-settings om-platform PRIVATE om-blocks
                                $<BUILD_INTERFACE:om-build-options>)
set_target_properties(om PROPERTIES LINKER_LANGUAGE CXX INSTALL_RPATH "${OM_INSTALL_RPATH}")
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_link_options(om PRIVATE "LINKER:--version-script=${OM_EXPORT_MAP}")
  set_target_properties(om PROPERTIES LINK_DEPENDS ${OM_EXPORT_MAP})
endif()

if(OM_BUILD_TESTS)
  add_library(om-static STATIC $<TARGET_OBJECTS:om-objects>)
  target_compile_definitions(om-static PUBLIC OM_STATIC)
  target_link_libraries(om-static PUBLIC om-build-options om-cells om-settings om-platform om-blocks)
  set_target_properties(om-static PROPERTIES LINKER_LANGUAGE CXX)
endif()
