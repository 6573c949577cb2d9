om_test(dimensions-edit-tests
        OmDimensionDeleteTest.cpp OmDimensionEditAllocationTest.cpp OmDimensionEditScaleTest.cpp
        OmDimensionExchangeTest.cpp OmDimensionInsertTest.cpp OmDimensionMeasureTest.cpp
        OmDimensionMoveTest.cpp OmDimensionOracleTest.cpp OmDimensionRemoveTest.cpp)
