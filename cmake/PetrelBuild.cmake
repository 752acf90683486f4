# Compiler settings for all of the project, and the two commands that its folders use.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# The sanitizers see every fault and end the run; no optimisation beyond -O1, so that reports name real lines.
set(PETREL_SANITIZERS "-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer")
set(CMAKE_CXX_FLAGS_SANITIZE "-O1 -g1 ${PETREL_SANITIZERS}")
set(CMAKE_EXE_LINKER_FLAGS_SANITIZE "${PETREL_SANITIZERS}")
set(CMAKE_SHARED_LINKER_FLAGS_SANITIZE "${PETREL_SANITIZERS}")
if(PETREL_FUZZ)
    # Coverage counters in the libraries; only the fuzz programs link libFuzzer's main.
    string(APPEND CMAKE_CXX_FLAGS_SANITIZE " -fsanitize=fuzzer-no-link")
endif()

# Paths in the log start at the repository's root, wherever it was built.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                    -ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-restrict) # GCC 12 sees overlaps in its own std::string that cannot be
endif()
if(PETREL_WERROR)
    add_compile_options(-Werror)
endif()
include_directories("${CMAKE_SOURCE_DIR}")

find_package(PkgConfig REQUIRED)

# petrel_library(NAME [DEPENDS target ...]): a static library of every .cpp below the current folder.
function(petrel_library pName)
    cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    if(sources)
        add_library(${pName} STATIC ${sources})
        target_link_libraries(${pName} PUBLIC ${ARG_DEPENDS})
    else()
        add_library(${pName} INTERFACE)
        target_link_libraries(${pName} INTERFACE ${ARG_DEPENDS})
    endif()
endfunction()

# petrel_pkg(TARGET module): an imported target PkgConfig::TARGET for a pkg-config module.
function(petrel_pkg pTarget pModule)
    pkg_check_modules(${pTarget} REQUIRED IMPORTED_TARGET GLOBAL ${pModule})
endfunction()
