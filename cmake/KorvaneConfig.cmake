# What a program that embeds the library gets with find_package(Korvane): the target Korvane::korvane.
include(CMakeFindDependencyMacro)
find_dependency(Qt6 6.4 COMPONENTS Core DBus)
find_dependency(fmt)
include("${CMAKE_CURRENT_LIST_DIR}/KorvaneTargets.cmake")
