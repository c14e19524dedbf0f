#pragma once

#include <QUrl>

// Opens addresses in the desktop's program for them: a web browser, a mail program.
class AddressOpener
{
public:
    virtual ~AddressOpener() = default;

    // Answers whether there was a program to hand `address` to.
    virtual bool open(const QUrl& address) = 0;
};
