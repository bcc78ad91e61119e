# How a room becomes a target.

function(qn_configure_room name)
    target_compile_options(${name} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
    if(QN_WARNINGS_AS_ERRORS)
        target_compile_options(${name} PRIVATE -Werror)
    endif()
    target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH)
endfunction()

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
    qn_configure_room(${name})
    install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qnprint NAMELINK_SKIP)
endfunction()

# A room that ends up inside the plug-in or the host.
function(qn_add_room name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    qn_configure_room(${name})
endfunction()

# A room of the host. Includes from another room are written with that room's name.
function(qn_add_host_room name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/Host)
    qn_configure_room(${name})
endfunction()
