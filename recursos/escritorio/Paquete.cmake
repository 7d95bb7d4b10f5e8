# The Debian package: `cpack -G DEB` in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zorbin)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${ZORBIN_CONTACTO})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Liberation Mono sets the listings. Where no other font is installed it would set the screens too.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "fonts-dejavu-core, fonts-liberation, hicolor-icon-theme, qt6-qpa-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "desktop-file-utils, evince | pdf-viewer, libqt6svg6, shared-mime-info, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-gtk-platformtheme, qt6-wayland")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "structural design of buried concrete pressure pipes")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"ZORBIN designs concrete pressure pipes, reinforced with or without a steel
cylinder, and post-tensioned, by Anejo 4 of the Instrucción del Instituto
Eduardo Torroja. It calculates every case of pressure and height of fill of a
project, and lists loads, moments and steel on the screen, on paper and in PDF
files, in five languages.
.
A hydraulic calculator, an analysis of aggressive waters and soils, and a
command line, zorbin-calc, come with it.")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/debian/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
