# add_translations(TARGET PREFIX TS...): compiles translation files into TARGET, as resources at PREFIX.
# The target's property COMPILED_TRANSLATIONS lists what they became.
# Qt's own command for it comes with all of its tools, of which this needs one.
find_program(KWOPDE_LRELEASE NAMES lrelease lrelease6 lrelease-qt6 REQUIRED
             HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})

function(add_translations target prefix)
  set(compiled)
  foreach(file IN LISTS ARGN)
    cmake_path(GET file STEM name)
    set(qm ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
    add_custom_command(OUTPUT ${qm} COMMAND ${KWOPDE_LRELEASE} -silent ${file} -qm ${qm} DEPENDS ${file})
    list(APPEND compiled ${qm})
  endforeach()
  set_target_properties(${target} PROPERTIES COMPILED_TRANSLATIONS "${compiled}")
  qt6_add_resources(${target} translations PREFIX ${prefix} BASE ${CMAKE_CURRENT_BINARY_DIR}
                   FILES ${compiled})
endfunction()
