#pragma once

#include "platform/forms/Form.h"

#include <string>

namespace tumble {

/// A modal alert with a text and an OK button, as large as the text needs.
class MessageBox : public Form {
public:
    MessageBox(const std::string& text, const std::string& caption);

    Label lblText;
    CommandButton cmdOK;

private:
    MessageBox(const std::string& text, const std::string& caption, const TextExtent& extent);
};

/// Shows a message box and returns when the player has closed it. Line feeds break the text; carriage returns are
/// dropped.
void MsgBox(const std::string& text, const std::string& caption = desktop().App().Title);

} // namespace tumble
