#pragma once
// A picture box: shows a picture file (a Windows path) that the window names; a click fires Click.

#include "ui/Control.h"

namespace ui
{

class PictureBox : public Control
{
public:
    QString kind() const override { return QStringLiteral("PictureBox"); }

    const QString &picture() const { return m_picture; }

    // Names the file again even when it is the same name, so that the view reloads a changed file.
    void setPicture(const QString &winPath)
    {
        m_picture = winPath;
        ++m_generation;
        changed();
    }

    int generation() const { return m_generation; }

    QStringList dumpRows() const override { return {m_picture}; }

private:
    QString m_picture;
    int m_generation = 0;
};

} // namespace ui
