om_test(output-kinds-tests
        FileListTest.cpp LabelEncodingTest.cpp OmAnswerTreeTest.cpp OmChartMapInfoTest.cpp
        OmChartTest.cpp OmInteractiveTest.cpp OmModelTest.cpp PayloadTest.cpp SharedRecordTest.cpp)
