#pragma once

#include <QObject>

/// Keeps the status bar's messages: without it, the toolkit empties the bar whenever the mouse passes over a
/// menu, to show the status tips that this window's actions don't have.
class StatusTipFilter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
