# Makes the Debian packages of the built tree, unpacks them into a scratch root with dpkg -x,
# checks what each holds and its control fields, then builds the example host of .ui forms
# against the unpacked CMake package and runs it offscreen on a sample company made by the
# packaged qd8-admin.
cmake_minimum_required(VERSION 3.22)
file(REMOVE_RECURSE ${WORK_DIR})
set(root ${WORK_DIR}/root)

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(rc)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}\n${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

run("cpack" ${CMAKE_CPACK_COMMAND} --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}/packages
  -D CPACK_DEBIAN_COMPRESSION_TYPE=none)

include(${BUILD_DIR}/CPackConfig.cmake)  # CPACK_COMPONENTS_ALL: is the Designer plugin built?
set(expected libqd8designer2 libqd8designer2-dev qd8-workbench)
if(designer IN_LIST CPACK_COMPONENTS_ALL)
  list(APPEND expected qd8designer2-designer-plugin)
endif()
foreach(package IN LISTS expected)
  file(GLOB deb ${WORK_DIR}/packages/${package}_*.deb)
  if(NOT deb)
    message(FATAL_ERROR "no package ${package} among: ${out}")
  endif()
  run("dpkg -x ${deb}" dpkg-deb -x ${deb} ${root})
  run("dpkg-deb -f ${deb}" dpkg-deb -f ${deb} Package Version Depends Maintainer Description)
  set(fields_${package} "${out}")
  if(NOT out MATCHES "Version: ${CPACK_PACKAGE_VERSION}\n" OR NOT out MATCHES "Maintainer: [^\n]+<[^\n]+@" OR NOT out MATCHES "Description: [^\n]+\n [^\n]+")
    message(FATAL_ERROR "${package}: version, maintainer or description missing:\n${out}")
  endif()
endforeach()

# Each package needs the library of the same version; dpkg-shlibdeps found the rest.
set(version "\\(= ${CPACK_PACKAGE_VERSION}\\)")
foreach(check
    "libqd8designer2;libsqlite3-0.*libpq5|libpq5.*libsqlite3-0"
    "libqd8designer2-dev;libqd8designer2 ${version}.*qt6-base-dev"
    "qd8-workbench;libqd8designer2 ${version}.*fonts-thai-tlwg.*libqt6widgets6")
  list(GET check 0 package)
  list(GET check 1 pattern)
  if(NOT fields_${package} MATCHES "Depends: [^\n]*(${pattern})")
    message(FATAL_ERROR "${package}: Depends should match ${pattern}:\n${fields_${package}}")
  endif()
endforeach()

set(present
  usr/lib/libQD8Designer2.so.0 usr/lib/libQD8Designer2Browser.so.0 usr/lib/libQD8Designer2.so
  usr/include/QD8Designer2/widgets/HostSession.h usr/include/QD8Designer2/editors/QuickGrid.h
  usr/lib/cmake/QD8Designer2/QD8Designer2Config.cmake usr/lib/cmake/QD8Designer2/QD8Designer2Targets.cmake
  usr/bin/qd8-workbench usr/bin/qd8-admin usr/share/applications/qd8-workbench.desktop
  usr/share/icons/hicolor/scalable/apps/qd8-workbench.svg)
foreach(file IN LISTS present)
  if(NOT EXISTS ${root}/${file})
    message(FATAL_ERROR "the packages lack ${file}")
  endif()
endforeach()
file(GLOB_RECURSE private RELATIVE ${root} ${root}/*_p.h)
file(GLOB_RECURSE plugins RELATIVE ${root} ${root}/usr/lib/*/qt6/plugins/designer/*.so)
if(private)
  message(FATAL_ERROR "private headers packaged: ${private}")
endif()
if(designer IN_LIST CPACK_COMPONENTS_ALL AND NOT plugins)
  message(FATAL_ERROR "the Designer plugin package holds no plugin")
endif()
file(READ ${root}/usr/share/applications/qd8-workbench.desktop desktop)
if(NOT desktop MATCHES "\nExec=qd8-workbench\n" OR NOT desktop MATCHES "\nIcon=qd8-workbench\n")
  message(FATAL_ERROR "the desktop entry does not start qd8-workbench with its icon:\n${desktop}")
endif()

# The example host, built against the unpacked packages only. A sanitized library needs a
# sanitized program around it.
set(flags "")
if(SANITIZE)
  set(flags "-fsanitize=address,undefined")
endif()
run("configuring the example" ${CMAKE_COMMAND} -S ${EXAMPLE_DIR} -B ${WORK_DIR}/example -G "${GENERATOR}"
  -DCMAKE_PREFIX_PATH=${root}/usr -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS=${flags}"
  -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run("building the example" ${CMAKE_COMMAND} --build ${WORK_DIR}/example)

set(ENV{LD_LIBRARY_PATH} ${root}/usr/lib)
set(ENV{QT_QPA_PLATFORM} offscreen)
run("the packaged qd8-admin" ${root}/usr/bin/qd8-admin init ${WORK_DIR}/company)
foreach(user SOMCHAI JOHN)
  run("the example as ${user}" ${WORK_DIR}/example/salesdesk ${WORK_DIR}/company --user ${user} --screenshot ${WORK_DIR}/${user})
  if(NOT out MATCHES "products [1-9][0-9]*\norders [1-9][0-9]*\nledger [1-9][0-9]*\n")
    message(FATAL_ERROR "the example showed a form without rows as ${user}:\n${out}")
  endif()
  foreach(form products orders ledger)
    file(SIZE ${WORK_DIR}/${user}/${form}.png size)
    if(size LESS 10000)
      message(FATAL_ERROR "the picture of ${form} is nearly empty (${size} bytes)")
    endif()
  endforeach()
endforeach()
message(STATUS "packages and example: ${out}")
