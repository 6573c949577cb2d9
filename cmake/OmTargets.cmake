# What every target of the project is compiled with.

add_library(om-build-options INTERFACE)
target_compile_features(om-build-options INTERFACE cxx_std_20)
target_include_directories(om-build-options INTERFACE ${PROJECT_SOURCE_DIR})
if(MSVC)
  target_compile_options(om-build-options INTERFACE /W4 /permissive-)
else()
  target_compile_options(om-build-options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endif()
if(OM_SANITIZERS)
  target_compile_options(om-build-options INTERFACE -fsanitize=${OM_SANITIZERS}
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(om-build-options INTERFACE -fsanitize=${OM_SANITIZERS})
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_COMPILE_WARNING_AS_ERROR ${OM_WARNINGS_AS_ERRORS})
if(OM_LINT)
  find_program(OM_CLANG_TIDY clang-tidy REQUIRED)
endif()

# Properties that the shared libraries of the project have in common.
function(om_library_properties target)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  if(NOT MSVC)
    # Calls within a library go straight to their target and can be inlined, exported or not.
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
  endif()
  if(OM_LINT)
    set_target_properties(${target} PROPERTIES CXX_CLANG_TIDY "${OM_CLANG_TIDY};--quiet")
  endif()
endfunction()

# Where an installed library finds its companions: beside itself.
set(OM_INSTALL_RPATH "$<$<PLATFORM_ID:Linux>:$ORIGIN>")
