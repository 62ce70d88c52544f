# libkorvane: platform, library and string tables in one shared library that other programs can embed.
add_library(korvane SHARED)
add_library(Korvane::korvane ALIAS korvane)
target_compile_features(korvane PUBLIC cxx_std_20)
target_link_libraries(korvane PRIVATE korvane-settings korvane-platform korvane-core korvane-resources)
# What the installed headers include; KorvaneConfig.cmake finds the same.
target_link_libraries(korvane PUBLIC Qt6::Core Qt6::DBus fmt::fmt)
target_link_libraries(korvane PRIVATE Qt6::Network nlohmann_json::nlohmann_json PkgConfig::LIBSECRET Threads::Threads)
set_target_properties(korvane PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 0)
target_include_directories(korvane INTERFACE
  $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/korvane>)

# Headers that no public header includes and an embedding program has no use for.
set(privateHeaders
  AssetLocation CallbackListener ChildLaunch CredentialStore CurlLibrary CurlPool DataFile ExportPlan ExportProgress HandOver LocalNetwork LockedJSONFile LogOnce MediaInfo MediaProgram NetworkRoute
  PictureProgram PreferenceDomain RunningChild SecretKeyring ServiceConnection ServicePulse SignInAnswer SignInService TransferFailure URLTransfer UserBus WireRecord)
list(JOIN privateHeaders "|" privateHeaders)

include(CMakePackageConfigHelpers)
write_basic_package_version_file("${CMAKE_BINARY_DIR}/KorvaneConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(TARGETS korvane EXPORT KorvaneTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT KorvaneTargets NAMESPACE Korvane:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Korvane)
install(FILES cmake/KorvaneConfig.cmake "${CMAKE_BINARY_DIR}/KorvaneConfigVersion.cmake"
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Korvane)
file(GLOB optionScreens CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/*.h")
install(FILES ${optionScreens} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/korvane)
install(DIRECTORY Korvane Platform DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/korvane
  FILES_MATCHING PATTERN "*.h" REGEX "/(${privateHeaders})\\.h$" EXCLUDE)
