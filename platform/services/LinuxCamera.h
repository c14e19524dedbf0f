#pragma once

#include "platform/services/Camera.h"

#include <QStringList>
#include <chrono>
#include <future>

// The camera that Qt Multimedia finds. That library brings dozens of others, for which no start of the
// program should wait, so the code that uses it is a plugin, loaded when a camera is first asked for. A
// plugin that is missing or broken is no camera.
class LinuxCamera : public Camera
{
public:
    // Beside the program, as it is built, or where an installation has it.
    [[nodiscard]] static QStringList installedPluginFiles();

    // The first of `pluginFiles` that loads is taken.
    explicit LinuxCamera(QStringList pluginFiles = installedPluginFiles());
    ~LinuxCamera() override;
    LinuxCamera(const LinuxCamera&) = delete;
    LinuxCamera& operator=(const LinuxCamera&) = delete;

    [[nodiscard]] bool isAvailable() override;
    void start(Told told) override;
    void stop() override;

private:
    void beginSearch();

    QStringList pluginFiles;
    std::shared_future<Camera*> search;
    std::chrono::steady_clock::time_point searchEnd;
    // The plugin's, which lives as long as the program; null: not found, or not yet.
    Camera* camera = nullptr;
};
