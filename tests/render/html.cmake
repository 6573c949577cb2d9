# The writer of HTML pages, and the program that makes the pages for scripts/check-web.

target_sources(render-tests PRIVATE
  HtmlHostileTest.cpp HtmlLayersTest.cpp HtmlOutTest.cpp HtmlTableTest.cpp HtmlWriterTest.cpp)

add_executable(render-web-pages ${CMAKE_CURRENT_LIST_DIR}/web/make_pages.cpp)
target_link_libraries(render-web-pages PRIVATE om-render om-build-options)
