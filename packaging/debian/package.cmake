# The Debian package, by `cpack --preset deb`.
loadwick_compressed(debian/changelog changelog "${CMAKE_INSTALL_DATADIR}/doc/loadwick" COMPONENT debian
                    EXCLUDE_FROM_ALL)
install(FILES debian/copyright DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/loadwick" COMPONENT debian
        EXCLUDE_FROM_ALL)

# Linked libraries are detected; these are loaded by name at run time, so they come from the package
# list that everything else uses.
file(STRINGS "${PROJECT_SOURCE_DIR}/tools/packages/run.txt" loaded
     REGEX "^(qml6-module-|qt6-wayland|libqt6svg6|libgl1-mesa-dri|fonts-)")
list(JOIN loaded ", " loaded)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME loadwick)
set(CPACK_PACKAGE_CONTACT "The Loadwick authors <loadwick@users.noreply.github.com>")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};Loadwick;Unspecified;/"
    "${PROJECT_BINARY_DIR};Loadwick;debian;/")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${loaded}")
# Without the theme the file dialogs are Qt's own; without the portal the window does not know
# whether the desktop is dark; without zsh its log-in shell cannot be queried.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-gtk-platformtheme, xdg-desktop-portal, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS zsh)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"measures how much of a Claude Code session's context is gone at its start
A Claude Code session does not begin empty: its system prompt, tools, memory
and the instruction files of the folder take their share of the context
window before the user types a word. Loadwick starts exactly one real session
in a folder of the user's choice, reads the token usage that the session
itself recorded, and shows the total with its band, where it goes, how it
changed from scan to scan and how repositories compare.

It needs an installed and signed-in claude command, which is not part of
Debian.")
include(CPack)
