#pragma once

// What nearly every file includes; parsing it once halves a build.
#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>
