#pragma once
// Dialog templates: the forms of the library's resources, by template id, with their texts
// in the language in force (private to the dialog layer).

#include "platform/core/Types.h"

#include <memory>

class QPixmap;
class QWidget;

namespace seisplot {

class DialogWidget;

// The widgets of template `id` under a new dialog widget; null when there is no such
// template. Every widget that is a control carries its id in the property "controlId".
std::unique_ptr<DialogWidget> LoadDialogTemplate(UINT id, QWidget* parent);

// The picture of bitmap resource `name` ("XXDXDYU"); null when there is none.
bool LoadBitmapResource(const char* name, QPixmap& pixmap);

inline constexpr const char* kControlIdProperty = "controlId";

} // namespace seisplot
