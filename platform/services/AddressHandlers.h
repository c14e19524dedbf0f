#pragma once

// Whether the desktop has a default program for addresses of `scheme`, such as "mailto".
[[nodiscard]] bool hasHandlerFor(const char* scheme);
