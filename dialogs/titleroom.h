#pragma once

class QDialog;

/// Makes @p dialog, which has all its widgets, wide enough for its title: the toolkit looks at the widgets
/// only, except in message boxes.
void makeRoomForTitle(QDialog* dialog);
