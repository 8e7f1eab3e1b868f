#pragma once

class QWidget;

namespace quittika::theme {

/// Fits a newly built window to the desktop: sizes and fonts of the design grow with the desktop's text,
/// except those that are fixed in both directions, which are pictures'; icons of its menus, drawn
/// for light ground, get lighter on a dark desktop.
void dress(QWidget& window);

} // namespace quittika::theme
