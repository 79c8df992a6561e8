#pragma once
// Reading and replacing one element's value in XML held as text, without a parser: the tag is
// matched as a prefix, exact case, and positions count from 1.

#include <QString>

namespace core
{

// From pos, finds "<" + tag, the next ">", and "</" + tag; the value between becomes newValue.
// pos becomes the old text's position of the "</". A missing tag leaves the text as it was and
// pos 0.
void PutDetail(QString &text, int &pos, const QString &tag, const QString &newValue);

// The reverse: value gets the text between; pos becomes the position of the "</". A missing tag
// sets pos to 0 and leaves value as it was.
void GetDetail(const QString &text, int &pos, const QString &tag, QString &value);

} // namespace core
