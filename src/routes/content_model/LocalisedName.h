#pragma once
// The display name of a catalogue entry: the first non-empty of its English, French, Italian,
// German and Spanish elements, which follow the entry's DevString.

#include <QString>

namespace routes
{

struct LocalisedName {
    QString name;
    int lastClose = 0; // the position of the last closing language tag read
};

// Reads the languages in order from position from (the DevString's closing tag), each search
// starting at the hit of the language before, until one is not empty. A missing element raises
// failure 5, as the cut of a position 0 does.
LocalisedName readLocalisedName(const QString &text, int from);

} // namespace routes
