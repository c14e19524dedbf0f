#pragma once

#include "platform/pdf/PdfCharacterMap.h"

class PdfObjects;

// By the names that the fonts have among the resources of pages.
using PdfCharacterMaps = std::map<QByteArray, PdfCharacterMap>;

// The maps of all fonts of a file's pages, which are made to mean, in the file too, the characters that were
// drawn: `ofText`.
[[nodiscard]] PdfCharacterMaps meanCharacters(PdfObjects& objects, const CodeUnits& ofText);

// Whether the maps give back every text of the characters `ofText`.
[[nodiscard]] bool mapsSuffice(const PdfCharacterMaps& maps, const CodeUnits& ofText);
