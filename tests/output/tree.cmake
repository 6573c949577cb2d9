om_test(output-tree-tests
        AmputateTest.cpp OmOutputTreeAllocationTest.cpp OmOutputTreeCopyTest.cpp
        OmOutputTreeOracleTest.cpp OmOutputTreePruneTest.cpp OmOutputTreeScaleTest.cpp
        OmOutputTreeTest.cpp OmOutputWalkerTest.cpp)
