include(CMakeFindDependencyMacro)
find_dependency(Qt6 COMPONENTS Core DBus)
include("${CMAKE_CURRENT_LIST_DIR}/KorvaneTargets.cmake")
