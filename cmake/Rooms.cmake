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
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/Platform)
    install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qnprint NAMELINK_SKIP)
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
