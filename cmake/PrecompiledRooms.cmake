# Rooms with Qt's headers compiled once, and the panels in one unit, for who compiles them over and over:
# CMAKE_PROJECT_INCLUDE names this file.
function(qn_precompile_rooms)
    foreach(target PrintSettingPane CustomView PDEBaseClass Utilities)
        target_precompile_headers(${target} PRIVATE <QtWidgets>)
    endforeach()
    foreach(target Foundation HostPPD HostSession HostJobs HostCups HostDialog HostServer qnprint)
        target_precompile_headers(${target} PRIVATE <QtCore>)
    endforeach()
    set_target_properties(PrintSettingPane PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
    set_source_files_properties(PrintSettingPane/PrintSettingAdvancedPDE.cpp TARGET_DIRECTORY PrintSettingPane
        PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON) # has a table of the same name
endfunction()

cmake_language(DEFER CALL qn_precompile_rooms)
