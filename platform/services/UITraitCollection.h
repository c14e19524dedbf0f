#pragma once

// How the interface looks now.
enum class UIUserInterfaceStyle { Light = 1, Dark = 2 };

[[nodiscard]] UIUserInterfaceStyle currentUserInterfaceStyle();
