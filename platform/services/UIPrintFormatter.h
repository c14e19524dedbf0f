#pragma once

#include "platform/services/Printer.h"

// Lays content out on the printer's pages.
class UIPrintFormatter
{
public:
    explicit UIPrintFormatter(PrintContent content)
        : printed(std::move(content))
    {
    }

    [[nodiscard]] const PrintContent& content() const { return printed; }

private:
    PrintContent printed;
};

// For a text with attributes and pictures.
class UISimpleTextPrintFormatter : public UIPrintFormatter
{
public:
    explicit UISimpleTextPrintFormatter(NSAttributedString text)
        : UIPrintFormatter(std::move(text))
    {
    }
};
