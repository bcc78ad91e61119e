# How a room becomes a target.

# What every target of ours is compiled with; linked once, for the whole house.
add_library(qn_warnings INTERFACE)
target_compile_options(qn_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${QN_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(qn_warnings INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH)

# The version in a header of its own: a new one compiles again only what tells it.
configure_file(${CMAKE_CURRENT_LIST_DIR}/QnVersion.h.in ${PROJECT_BINARY_DIR}/generated/QnVersion.h)
add_library(qn_version INTERFACE)
target_include_directories(qn_version INTERFACE ${PROJECT_BINARY_DIR}/generated)

# A library of the platform: shared, because host and plug-in must meet in the same user defaults, locale and
# notification centre.
function(qn_add_platform_library name)
    add_library(${name} SHARED ${ARGN})
    string(TOLOWER ${name} lower)
    set_target_properties(${name} PROPERTIES
        OUTPUT_NAME qn${lower}
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN"
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
    add_library(qnprint::${name} ALIAS ${name})
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Platform> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/qnprint>)
    install(TARGETS ${name} EXPORT qnprint LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qnprint NAMELINK_SKIP)
    install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qnprint
        FILES_MATCHING PATTERN "*.h")
endfunction()

# A room that ends up inside the plug-in or the host.
function(qn_add_room name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# A room of the host. Includes from another room are written with that room's name.
function(qn_add_host_room name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/Host)
endfunction()

# Everything that a target links, directly or through others.
function(qn_links result target)
    set(seen)
    set(waiting ${target})
    while(waiting)
        list(POP_FRONT waiting each)
        string(REGEX REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1" each "${each}")
        if(each IN_LIST seen OR NOT TARGET "${each}")
            continue()
        endif()
        list(APPEND seen ${each})
        foreach(property LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
            get_target_property(links ${each} ${property})
            if(links)
                list(APPEND waiting ${links})
            endif()
        endforeach()
    endwhile()
    set(${result} "${seen}" PARENT_SCOPE)
endfunction()

# Of the rooms in a house, only those named may link a library; another one that does stops the configuration.
# Called when all link lines are written.
function(qn_restrict library house)
    get_property(folders DIRECTORY ${house} PROPERTY SUBDIRECTORIES)
    foreach(folder IN LISTS folders)
        cmake_path(GET folder FILENAME room)
        get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
        foreach(target IN LISTS targets)
            qn_links(links ${target})
            if(library IN_LIST links AND NOT room IN_LIST ARGN)
                message(FATAL_ERROR "${house}/${room}: ${target} links ${library}; only ${ARGN} may")
            endif()
        endforeach()
    endforeach()
endfunction()
