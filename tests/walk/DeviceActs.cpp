#include "tests/walk/DeviceActs.h"

#include "resources/Resources.h"

QString DeviceActs::pickFile(bool cancelled)
{
    const bool isImport = state.screens.topClass() == "ImportViewController";
    auto& device = state.program.device;
    const QString file = state.program.path(isImport ? "Marrowvale.csv" : "cover.png");
    device.nextPick = cancelled ? std::nullopt : std::optional(QUrl::fromLocalFile(file));
    const int screen = state.screens.topNumber();
    device.answerPick();
    state.conclude([this, isImport, cancelled, screen] {
        if (cancelled)
            return;
        if (isImport)
            state.loadedText = state.program.exchangeText();
        state.model.showCover(screen, true);
    });
    return cancelled ? "cancel the file dialog" : "pick a file";
}

QString DeviceActs::answerDialogs(const Step& step)
{
    RecordingDevice& device = state.program.device;
    if (device.isPicking())
        return pickFile(step.first % 4 == 0);
    if (device.isCameraOn()) {
        device.letCameraTell(movieLogo());
        state.conclude({});
        return "the camera shows a picture";
    }
    if (auto told = std::exchange(device.mailTwin->told, nullptr)) {
        told(MFMailComposeResult::Sent);
        state.conclude({});
        return "the mail is written";
    }
    if (auto told = std::exchange(device.printerTwin->told, nullptr)) {
        told(step.first % 2 == 0, std::nullopt);
        state.conclude({});
        return "the print dialog closes";
    }
    return {};
}

QString DeviceActs::change(const Step& step)
{
    RecordingDevice& device = state.program.device;
    if (step.kind == Step::Kind::SwitchStyle) {
        device.setDark(!device.interfaceStyleTwin->dark);
        state.conclude({});
        return "switch between light and dark";
    }
    if (step.first % 3 == 0)
        device.pasteboardTwin->picture = device.pasteboardTwin->picture.isNull() ? movieLogo() : QImage();
    else if (step.first % 3 == 1)
        device.setCanSendText(!device.textMessagesTwin->can);
    else
        device.setCanSendMail(!device.mailTwin->can);
    return "change what the device can do";
}
