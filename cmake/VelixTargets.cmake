# What every target of the project has in common: include root, warnings as errors, sanitizers.
add_library(velix_options INTERFACE)
target_include_directories(velix_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(velix_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wold-style-cast -Wformat=2 -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping copies in every assignment of a literal to a std::string.
    target_compile_options(velix_options INTERFACE -Wno-restrict)
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

# velix_library(name SOURCES file... LINK library... [QT_OBJECTS])
# A static library of one layer. QT_OBJECTS turns on moc for layers with signals and slots.
function(velix_library name)
    cmake_parse_arguments(arg "QT_OBJECTS" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE velix_options)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    if(arg_QT_OBJECTS)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
endfunction()

# velix_executable(name SOURCES file... LINK library...)
function(velix_executable name)
    cmake_parse_arguments(arg "QT_OBJECTS" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} velix_options)
    if(arg_QT_OBJECTS)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
endfunction()
