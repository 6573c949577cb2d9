target_sources(display-tests PRIVATE
  ColumnHeadingLabelsTest.cpp ColumnHeadingSkipTest.cpp HeadingAllocationTest.cpp
  HeadingDeletedTest.cpp HeadingEdgesTest.cpp HeadingEntriesTest.cpp HeadingFillTest.cpp
  HeadingSubscriptsTest.cpp LayerHeadingNodesTest.cpp LayerHeadingTest.cpp
  RowHeadingCornerTest.cpp RowHeadingTest.cpp)
