#pragma once

class QWidget;

/// Shows how the window works and the keys of its menus, in a window of its own.
void showHelp(QWidget &window);
