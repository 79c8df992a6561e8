#pragma once
// The program writes file dialog filters as "Label|*.a;*.b|Label 2|*.*"; Qt reads
// "Label (*.a *.b);;Label 2 (*)".

#include <QString>

namespace uiqt
{

QString toQtFilter(const QString &filter);

} // namespace uiqt
