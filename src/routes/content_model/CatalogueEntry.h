#pragma once
// Cutting one entry out of a catalogue's XML text: a scenario from Scenarios.xml, a route from
// Routes.xml, found by a key (the entry's folder name) anywhere inside it.

#include <QString>

namespace routes
{

// The text without the cScenarioProperties entry holding key. The one character in front of the
// next entry stays; with no next entry, the text goes on after the entry's closing tag.
QString RemoveScenarioEntry(const QString &text, const QString &key);

// The same cut for a cRouteProperties entry of Routes.xml.
QString RemoveRouteEntry(const QString &text, const QString &key);

} // namespace routes
