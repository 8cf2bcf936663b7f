# SPDX-License-Identifier: MIT
# Folders that everybody may enter, whatever the umask of who installs. CMake makes missing ones with
# the modes that the umask leaves; here they are made before. Those that exist keep their modes.
set(installed_folders
  ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR}/quorvandel ${CMAKE_INSTALL_LIBEXECDIR}/quorvandel/bin
  ${CMAKE_INSTALL_MANDIR}/man1 ${CMAKE_INSTALL_DATADIR}/applications ${CMAKE_INSTALL_DATADIR}/metainfo
  ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
  list(APPEND installed_folders ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
foreach(pictures IN ITEMS north south zh assistant assistant-zh)
  list(APPEND installed_folders ${CMAKE_INSTALL_DOCDIR}/images/${pictures})
endforeach()
# An absolute folder is not below the prefix; both are below DESTDIR.
list(TRANSFORM installed_folders PREPEND "\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/" REGEX "^[^/]")
list(TRANSFORM installed_folders PREPEND "\$ENV{DESTDIR}" REGEX "^/")
string(REPLACE ";" "\"\n    \"" installed_folders "${installed_folders}")
install(CODE "execute_process(COMMAND sh -c \"umask 022 && mkdir -p -- \\\"\\$@\\\"\" sh
    \"${installed_folders}\" COMMAND_ERROR_IS_FATAL ANY)")
