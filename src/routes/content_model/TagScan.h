#pragma once
// The scanning steps every route and asset window reads converted game XML with: values found by
// tag prefix and cut out between '>' and '<', the provider and product of a reference, and the
// mending of entity and mis-decoded letters in paths. Positions count from 1; 0 is "not found".

#include <QString>

namespace routes
{

// The value of the element whose tag prefix stands at or after start: between the first '>' from
// the tag and the next '<'. An empty prefix takes the text from start on. Case-blind.
QString ScanValue(const QString &text, const QString &tagPrefix = {}, int start = 1);

// From pos, the value between "<tag ...>" and "</tag"; pos becomes the closing tag's position.
// With no "<tag" left, pos becomes 0 and value keeps what it held.
void GetTagValue(const QString &text, int &pos, const QString &tag, QString &value);

// From pos, the element carrying the ="attribute" marker (the converter's d:precision="string"),
// its value up to "</e"; pos becomes that position, or 0 when the marker is not found.
void GetStringValue(const QString &text, int &pos, const QString &attribute, QString &value);

// The provider of the last "<Provider" at or before pos and the product after it. Case-blind;
// the exact variant matches the tags' case as written.
void GetProviderProduct(int pos, QString &provider, QString &product, const QString &text);
void GetProviderProductExact(int pos, QString &provider, QString &product, const QString &text);

// Mends "&apos;", "&amp;" and three letters the converter's output decodes wrongly; true when
// anything was replaced.
bool FixEntities(QString &path);

} // namespace routes
