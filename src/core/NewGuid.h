#pragma once
// A new GUID in the game's forms: its text, and the two decimal numbers the game's files hold.

#include <QString>
#include <QUuid>

namespace core
{

// The 8-4-4-4-12 text in capitals; first and second get the two numbers. Empty on failure.
QString NewGuid(QString &first, QString &second);

// The same from a given GUID, for a known result.
QString GuidForms(const QUuid &guid, QString &first, QString &second);

} // namespace core
