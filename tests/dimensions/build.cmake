om_test(dimensions-build-tests
        OmDimensionBuildAddTest.cpp OmDimensionBuildAllocationTest.cpp OmDimensionBuildChildTest.cpp
        OmDimensionBuildConstructTest.cpp OmDimensionBuildCopyTest.cpp
        OmDimensionBuildCounterpartTest.cpp OmDimensionBuildFindTest.cpp
        OmDimensionBuildPrintTest.cpp OmDimensionBuildScaleTest.cpp
        OmDimensionNodeAllocationTest.cpp OmDimensionNodeAssignTest.cpp
        OmDimensionNodeOrderTest.cpp OmDimensionNodePrintTest.cpp OmDimensionNodeTest.cpp)
