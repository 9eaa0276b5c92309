# uses(TARGET OTHER...): TARGET runs or loads what the other targets are built into. They are there
# before it is linked; add_dependencies would have them there before it is compiled.
function(uses target)
  foreach(other IN LISTS ARGN)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS $<TARGET_FILE:${other}>)
  endforeach()
endfunction()
