om_test(pivot-properties-tests
        FormatAreaTest.cpp OmPivotTableFootnotesTest.cpp OmPivotTableFormatsTest.cpp
        OmPivotTableHelperTest.cpp OmPivotTablePrintTest.cpp
        OmPivotTablePropertiesAllocationTest.cpp OmPivotTablePropertiesTest.cpp
        OmPivotTableSettingsTest.cpp OmPivotTableTextsTest.cpp OmPivotTableThreadTest.cpp
        OmPivotTableTrackersTest.cpp OmPivotTableValidateTest.cpp
        OmPivotTableValidateTextsTest.cpp)
