#include "platform/services/LinuxCamera.h"

#include "platform/foundation/Pool.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPluginLoader>
#include <QThread>

namespace {

// The first list of cameras is made by a media library that looks for its own plugins, then asks every source
// of video and sound. Measured: 20 to 60 ms; 320 ms at the first use of a fresh account; a minute where the
// sound server takes the connection and does not answer. So it is made in the pool for such code, and waited
// for this long; a list that comes later serves the next question.
constexpr auto patience = std::chrono::seconds(2);

// The plugin's single camera with its device list loaded; null if the file contains none.
Camera* cameraIn(const QString& pluginFile, QThread* mainThread)
{
    QPluginLoader loader(pluginFile);
    QObject* root = loader.instance();
    auto* camera = qobject_cast<Camera*>(root);
    if (camera == nullptr) {
        qWarning("There is no camera: %s", qPrintable(loader.errorString()));
        return nullptr;
    }
    root->moveToThread(mainThread);
    static_cast<void>(camera->isAvailable());
    return camera;
}

Camera* firstCamera(const QStringList& pluginFiles, QThread* mainThread)
{
    for (const QString& file : pluginFiles)
        if (QFile::exists(file))
            if (Camera* camera = cameraIn(file, mainThread))
                return camera;
    return nullptr;
}

} // namespace

QStringList LinuxCamera::installedPluginFiles()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString name = QStringLiteral("marrowvale-camera.so");
    return {program.filePath(name), program.filePath(QStringLiteral(MARROWVALE_PLUGIN_FOLDER "/") + name)};
}

LinuxCamera::LinuxCamera(QStringList pluginFiles)
    : pluginFiles(std::move(pluginFiles))
{
}

LinuxCamera::~LinuxCamera()
{
    LinuxCamera::stop();
}

void LinuxCamera::beginSearch()
{
    const auto task = std::make_shared<std::packaged_task<Camera*()>>(
        [files = pluginFiles, thread = QThread::currentThread()] { return firstCamera(files, thread); });
    search = task->get_future().share();
    searchEnd = std::chrono::steady_clock::now() + patience;
    Pool::mayHang().start([task] { (*task)(); });
}

bool LinuxCamera::isAvailable()
{
    if (!search.valid())
        beginSearch();
    if (search.wait_until(searchEnd) == std::future_status::ready)
        camera = search.get();
    return camera != nullptr && camera->isAvailable();
}

void LinuxCamera::start(Told told)
{
    if (camera != nullptr)
        camera->start(std::move(told));
}

void LinuxCamera::stop()
{
    if (camera != nullptr)
        camera->stop();
}
