include(CMakeFindDependencyMacro)
find_dependency(Qt6 COMPONENTS PrintSupport)
include(${CMAKE_CURRENT_LIST_DIR}/KWOPDETargets.cmake)
