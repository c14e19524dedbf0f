#pragma once

#include <QString>

// What a print job is, beside its content.
struct UIPrintInfo
{
    enum class OutputType {
        // Text and pictures.
        General
    };

    OutputType outputType = OutputType::General;
    QString jobName = QStringLiteral("Marrowvale");
};
