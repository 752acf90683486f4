#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNNTEXTDIALOG_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNNTEXTDIALOG_H

// Dialogs that a GUI file makes but for one text.

#include <string>

class znCEntity;
class znINode;

namespace znNTextDialog
{
// Loads the file as a modal GUI, sets pText on its entity pTextEntity and adds it in front of pParent's children. A
// missing entity or a missing text on it is logged, and the dialog stands without the text. Null if the file makes
// nothing, which is logged as well.
znCEntity* dialogCreate(const char* pFile, const char* pTextEntity, znINode* pParent, const std::string& pText);
} // namespace znNTextDialog

#endif
