om_test(output-parts-tests
        OmHeadingTest.cpp OmOutputPartCopyTest.cpp OmOutputPartLayoutTest.cpp OmOutputPartTest.cpp
        OmOutputPartVisitorTest.cpp OmPageTitleTest.cpp OmProcedureTest.cpp OmTextBlockTest.cpp
        OmUtilityTest.cpp PartsAllocationTest.cpp PartsCopyAllocationTest.cpp PartsLabelErrorTest.cpp)
