# How a bundle is built: by makers of drivers with the installed package, and here.
#
#   qn_add_bundle(NAME name PRINCIPAL class SOURCES file... [LIBRARIES target...] [IDENTIFIER identifier]
#                 [VERSION version] [INTERFACES file.ui...] [TEXTS Localizable_language.ts...] [PICTURES file.png...]
#                 [FOLDER name])
#
# The target `name` is the bundle's code, linked with the protocol and the libraries of the platform. Built, the bundle
# is the folder `plugins/name.plugin` of the project's build folder; installed, one of the plug-in folder of qnprint
# below the prefix. FOLDER: a folder within that, as bundles have that serve whatever printer.

include_guard(GLOBAL)
set(QN_BUNDLES_DIR ${CMAKE_CURRENT_LIST_DIR})

# What code must have in common to be one program: the standard library, its binary interface, Qt's major version. The
# host refuses a bundle whose Info.json has another tag, before it loads anything of it.
function(qn_build_tag result)
    if(NOT QN_STANDARD_LIBRARY)
        set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
        set(probe ${CMAKE_BINARY_DIR}/CMakeFiles/qn-standard-library.a)
        try_compile(compiled SOURCE_FROM_CONTENT probe.cpp [[
#include <version>
#if defined(_LIBCPP_VERSION)
#define LIBRARY "libc++"
#elif defined(_GLIBCXX_USE_CXX11_ABI) && _GLIBCXX_USE_CXX11_ABI
#define LIBRARY "libstdc++11"
#elif defined(__GLIBCXX__)
#define LIBRARY "libstdc++"
#else
#define LIBRARY "other"
#endif
extern const char tag[];
const char tag[] = "<library:" LIBRARY ">";
]] CXX_STANDARD 20 COPY_FILE ${probe} NO_CACHE OUTPUT_VARIABLE words)
        if(NOT compiled)
            message(FATAL_ERROR "The C++ compiler can't compile for C++20:\n${words}")
        endif()
        file(STRINGS ${probe} tag REGEX "<library:")
        string(REGEX REPLACE ".*<library:([^>]*)>.*" "\\1" tag "${tag}")
        set(QN_STANDARD_LIBRARY "${tag}" CACHE INTERNAL "The C++ standard library, with its binary interface")
    endif()
    set(${result} "${QN_STANDARD_LIBRARY}-qt${Qt6_VERSION_MAJOR}" PARENT_SCOPE)
endfunction()

# The version of the border, which stands in its header only; a change there configures anew.
function(qn_interface_version result)
    file(STRINGS ${QN_PROTOCOL_HEADER} version REGEX "^#define QN_PDE_INTERFACE_VERSION [0-9]+$")
    string(REGEX MATCH "[0-9]+$" version "${version}")
    if(NOT version)
        message(FATAL_ERROR "${QN_PROTOCOL_HEADER} names no interface version")
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${QN_PROTOCOL_HEADER})
    set(${result} ${version} PARENT_SCOPE)
endfunction()

# Makes one file of the bundle's resources from a file of its source, by a command.
macro(qn_add_resource made from)
    add_custom_command(OUTPUT ${resources}/${made} COMMAND ${ARGN} DEPENDS ${from} VERBATIM)
    list(APPEND outputs ${resources}/${made})
endmacro()

function(qn_add_bundle_resources name folder)
    cmake_parse_arguments(PARSE_ARGV 2 bundle "" "" "INTERFACES;TEXTS;PICTURES")
    set(resources ${folder}/Resources)
    file(MAKE_DIRECTORY ${resources})
    set(outputs)
    foreach(list INTERFACES TEXTS PICTURES)
        foreach(file IN LISTS bundle_${list})
            cmake_path(ABSOLUTE_PATH file NORMALIZE)
            cmake_path(GET file STEM LAST_ONLY stem)
            if(list STREQUAL "INTERFACES")
                qn_add_resource(${stem}.ui ${file} ${CMAKE_COMMAND} -DFROM=${file} -DTO=${resources}/${stem}.ui
                    -P ${QN_BUNDLES_DIR}/JoinLines.cmake)
            elseif(list STREQUAL "TEXTS")
                qn_add_resource(${stem}.qm ${file} Qt6::lrelease -silent ${file} -qm ${resources}/${stem}.qm)
            else()
                qn_add_resource(${stem}.png ${file} ${CMAKE_COMMAND} -E copy ${file} ${resources}/${stem}.png)
            endif()
        endforeach()
    endforeach()
    add_custom_target(${name}-resources DEPENDS ${outputs})
    add_dependencies(${name} ${name}-resources)
endfunction()

function(qn_add_bundle)
    cmake_parse_arguments(PARSE_ARGV 0 bundle "" "NAME;PRINCIPAL;IDENTIFIER;VERSION;FOLDER"
        "SOURCES;LIBRARIES;INTERFACES;TEXTS;PICTURES")
    foreach(needed NAME PRINCIPAL SOURCES)
        if(NOT bundle_${needed})
            message(FATAL_ERROR "qn_add_bundle: no ${needed}")
        endif()
    endforeach()
    if(bundle_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "qn_add_bundle: what is ${bundle_UNPARSED_ARGUMENTS}?")
    endif()
    if(NOT bundle_IDENTIFIER)
        set(bundle_IDENTIFIER ${bundle_NAME})
    endif()
    if(NOT bundle_VERSION)
        set(bundle_VERSION ${PROJECT_VERSION})
    endif()
    cmake_path(APPEND place "${bundle_FOLDER}" ${bundle_NAME}.plugin)
    set(folder ${PROJECT_BINARY_DIR}/plugins/${place})
    qn_interface_version(bundle_INTERFACE)
    qn_build_tag(bundle_BUILD)
    configure_file(${QN_BUNDLES_DIR}/Info.json.in ${folder}/Info.json @ONLY)

    add_library(${bundle_NAME} MODULE ${bundle_SOURCES})
    target_link_libraries(${bundle_NAME} PRIVATE ${bundle_LIBRARIES}
        qnprint::Protocol qnprint::Foundation qnprint::Printing qnprint::Toolkit)
    # Its calls of itself are bound when it is linked, not each time it is loaded.
    target_link_options(${bundle_NAME} PRIVATE -Wl,-Bsymbolic-functions)
    set_target_properties(${bundle_NAME} PROPERTIES PREFIX "" AUTOMOC ON LIBRARY_OUTPUT_DIRECTORY ${folder}
        INSTALL_RPATH "$ORIGIN/../..$<$<BOOL:${bundle_FOLDER}>:/..>")
    qn_add_bundle_resources(${bundle_NAME} ${folder} INTERFACES ${bundle_INTERFACES} TEXTS ${bundle_TEXTS}
        PICTURES ${bundle_PICTURES})

    set(installed ${QN_PLUGIN_DIR}/${place})
    install(TARGETS ${bundle_NAME} LIBRARY DESTINATION ${installed})
    install(FILES ${folder}/Info.json DESTINATION ${installed})
    install(DIRECTORY ${folder}/Resources DESTINATION ${installed})
endfunction()
