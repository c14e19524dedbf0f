#pragma once

// Since which version of the system there is what screens have a fallback for (Device::systemVersion).
namespace SystemVersions {

inline constexpr double symbolImages = 13;
inline constexpr double dateWheels = 13.4;
inline constexpr double contentTypes = 14;
inline constexpr double inlineDates = 14;
inline constexpr double menus = 14;
inline constexpr double reviewsInScenes = 14;

} // namespace SystemVersions
