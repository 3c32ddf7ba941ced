# What is installed: two libraries, their public headers, a CMake package and pkg-config files.

include(CMakePackageConfigHelpers)

foreach(dossier IN ITEMS CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_INCLUDEDIR)
    if(IS_ABSOLUTE "${${dossier}}")
        message(FATAL_ERROR "${dossier} is to be given from the prefix on")
    endif()
endforeach()

set(FABREL_DOSSIER_PAQUET "${CMAKE_INSTALL_LIBDIR}/cmake/FabrelGui")

install(TARGETS FabrelNoyau FabrelGui EXPORT FabrelGuiTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT execution
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT execution
        NAMELINK_COMPONENT developpement
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT developpement
)
install(EXPORT FabrelGuiTargets NAMESPACE Fabrel:: DESTINATION "${FABREL_DOSSIER_PAQUET}"
    COMPONENT developpement)

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/FabrelGuiConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/FabrelGuiConfig.cmake" INSTALL_DESTINATION "${FABREL_DOSSIER_PAQUET}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/FabrelGuiConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/FabrelGuiConfig.cmake"
    "${PROJECT_BINARY_DIR}/FabrelGuiConfigVersion.cmake"
    DESTINATION "${FABREL_DOSSIER_PAQUET}" COMPONENT developpement)

# The headers of one library, as paths below src/, and its umbrella header made of them.
function(fabrel_entetes bibliotheque resultat)
    get_target_property(entetes ${bibliotheque} HEADER_SET)
    set(chemins)
    set(parapluie "#pragma once\n\n// Everything public of ${bibliotheque}, by file name.\n")
    if(bibliotheque STREQUAL "FabrelGui")
        string(APPEND parapluie "\n#include \"FabrelNoyau/FabrelNoyau.h\"\n")
    endif()
    string(APPEND parapluie "\n")
    foreach(entete IN LISTS entetes)
        cmake_path(RELATIVE_PATH entete BASE_DIRECTORY "${PROJECT_SOURCE_DIR}/src")
        list(APPEND chemins "${entete}")
    endforeach()
    list(SORT chemins)
    foreach(chemin IN LISTS chemins)
        string(APPEND parapluie "#include \"${chemin}\"\n")
    endforeach()
    file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/include/${bibliotheque}/${bibliotheque}.h"
        CONTENT "${parapluie}" @ONLY)
    set(${resultat} "${chemins}" PARENT_SCOPE)
endfunction()

fabrel_entetes(FabrelNoyau FABREL_ENTETES_NOYAU)
fabrel_entetes(FabrelGui FABREL_ENTETES_GUI)
configure_file("${PROJECT_SOURCE_DIR}/cmake/InstalleEntetes.cmake.in"
    "${PROJECT_BINARY_DIR}/InstalleEntetes.cmake" @ONLY)
install(SCRIPT "${PROJECT_BINARY_DIR}/InstalleEntetes.cmake" COMPONENT developpement)

# From the folder of the pkg-config files to the prefix: a package may be moved as a whole.
file(RELATIVE_PATH FABREL_VERS_PREFIXE "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
foreach(bibliotheque IN ITEMS FabrelNoyau FabrelGui)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${bibliotheque}.pc.in"
        "${PROJECT_BINARY_DIR}/${bibliotheque}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${bibliotheque}.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT developpement)
endforeach()
