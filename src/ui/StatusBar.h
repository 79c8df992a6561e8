#pragma once
// A status bar: panels from 1, each with a key, a text, a style and sizing hints.

#include "ui/Control.h"

#include <QList>

namespace ui
{

struct StatusPanel {
    enum class Style { Text, Time, Date };
    QString key;
    QString text;
    Style style = Style::Text;
    bool autoSize = false;
    int minWidth = 0; // twips
};

class StatusBar : public Control
{
public:
    QString kind() const override { return QStringLiteral("StatusBar"); }

    int panelCount() const { return int(m_panels.size()); }

    // Adds a panel at the end and gives its number, from 1.
    int addPanel(const StatusPanel &panel = {});
    // Panel n counts from 1; a number outside raises failure 35600 ("Index out of bounds").
    const StatusPanel &panel(int n) const;
    void setPanel(int n, const StatusPanel &panel);
    void setPanelText(int n, const QString &text);
    void clearPanels();

    QStringList dumpRows() const override;

    bool dumpsAsRows() const override { return true; }

private:
    void check(int n) const;

    QList<StatusPanel> m_panels;
};

} // namespace ui
