om_test(pivot-cells-tests
        CellStoreDeleteTest.cpp CellStoreGrowTest.cpp CellStoreLevelTest.cpp
        OmPivotTableAxisTest.cpp OmPivotTableCellAllocationTest.cpp OmPivotTableCellCheckTest.cpp
        OmPivotTableCellLimitTest.cpp OmPivotTableCellScaleTest.cpp OmPivotTableCellTest.cpp
        OmPivotTableConstructTest.cpp OmPivotTableDimensionCopyTest.cpp
        OmPivotTableDimensionTest.cpp OmPivotTableIteratorRangeTest.cpp
        OmPivotTableIteratorTest.cpp OmPivotTableOracleTest.cpp PointerVectorTest.cpp)
