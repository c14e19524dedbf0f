#pragma once

#include <QString>
#include <stdexcept>

// Why nothing can be measured. It ends the program, once what stands on the disk has been taken away.
class BenchError : public std::runtime_error
{
public:
    explicit BenchError(const QString& reason)
        : std::runtime_error(reason.toStdString())
    {
    }
};
