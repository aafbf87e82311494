# The package for Debian: `cpack` in a build folder writes it there.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zelk)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "load channels into two-way radios")
set(CPACK_PACKAGE_DESCRIPTION
"Zelk edits the channel memories of a two-way radio in a grid, checks them
against the limits of that radio, keeps them in channel files, and sends them
to the radio or reads them from it over a serial port. It knows analog FM and
AM radios, P25 digital radios and airband radios.

The package also holds zelk-radio, which plays such a radio on a simulated
serial port.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${packagePrefix})
set(CPACK_STRIP_FILES TRUE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Zelk developers <zelk@localhost.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS TRUE)
# Opens the guide.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "evince | pdf-viewer")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
include(CPack)
