# The grid view and what it is made of, and the writer of plain text.

target_sources(render-tests PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/DisplayWidthTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DocumentWalkTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FootnoteMarksTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HeadingGridTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HeadingNotesTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LayerWalkTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NoLayerTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NumberTextTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PlainTextTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextDocumentTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextPanelsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextWriterTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Utf8Test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ViewOracleTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WrappingTest.cpp)
