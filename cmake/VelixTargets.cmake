# What every target of the project has in common: include root, warnings as errors, sanitizers.
add_library(velix_options INTERFACE)
target_include_directories(velix_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(velix_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wold-style-cast -Wformat=2 -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping copies in every assignment of a literal to a std::string.
    target_compile_options(velix_options INTERFACE -Wno-restrict)
    # Lets ccache tell whether a precompiled header is still the same.
    target_compile_options(velix_options INTERFACE -fpch-preprocess)
endif()
target_compile_definitions(velix_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(VELIX_SANITIZE)
    target_compile_options(velix_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(velix_options INTERFACE -fsanitize=address,undefined)
endif()
if(VELIX_FUZZ)
    target_compile_options(velix_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
    target_link_options(velix_options INTERFACE -fsanitize=address,undefined)
endif()

# velix_precompiled(name header): precompiled headers that many targets share. They may define no
# macro that one of these targets lacks, and so take no more than the folders of Qt Widgets.
function(velix_precompiled name header)
    add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/Precompiled.cpp)
    target_link_libraries(${name} PRIVATE velix_options Qt5::Core)
    target_include_directories(${name} PRIVATE ${Qt5Widgets_INCLUDE_DIRS})
    target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${header})
endfunction()
velix_precompiled(velix_precompiled_core PrecompiledCore.h)
velix_precompiled(velix_precompiled_widgets PrecompiledWidgets.h)

# velix_target(name [QT_OBJECTS] [WIDGETS]): what libraries and executables have in common.
# QT_OBJECTS turns on moc; WIDGETS does, too, and takes the precompiled headers of Qt Widgets.
function(velix_target name)
    cmake_parse_arguments(arg "QT_OBJECTS;WIDGETS" "" "" ${ARGN})
    target_link_libraries(${name} PRIVATE velix_options)
    if(arg_QT_OBJECTS OR arg_WIDGETS)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
    if(arg_WIDGETS)
        target_precompile_headers(${name} REUSE_FROM velix_precompiled_widgets)
    else()
        target_precompile_headers(${name} REUSE_FROM velix_precompiled_core)
    endif()
endfunction()

# velix_library(name SOURCES file... LINK library... [SHARED] [QT_OBJECTS] [WIDGETS])
# The library of one room, static unless it is SHARED.
function(velix_library name)
    cmake_parse_arguments(arg "SHARED" "" "SOURCES;LINK" ${ARGN})
    if(arg_SHARED)
        add_library(${name} SHARED ${arg_SOURCES})
    else()
        add_library(${name} STATIC ${arg_SOURCES})
    endif()
    target_link_libraries(${name} PUBLIC ${arg_LINK})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    velix_target(${name} ${arg_UNPARSED_ARGUMENTS})
endfunction()

# velix_executable(name SOURCES file... LINK library... [QT_OBJECTS] [WIDGETS])
function(velix_executable name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK})
    velix_target(${name} ${arg_UNPARSED_ARGUMENTS})
endfunction()
