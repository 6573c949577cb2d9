target_sources(display-tests PRIVATE HeadingOracleTest.cpp)
