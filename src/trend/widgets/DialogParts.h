#pragma once

#include <functional>

class QDialog;
class QDialogButtonBox;
class QLineEdit;
class QWidget;

// The OK and Cancel buttons of the trend dialogs, captioned from the language table (46, 47).
// OK runs `ok`, which closes the dialog when its logic accepts; Cancel rejects. With `preview`
// a third button (45) runs it and leaves the dialog open.
QDialogButtonBox* okCancelButtons(QDialog* dialog, const std::function<void()>& ok,
                                  const std::function<void()>& preview = {});

// A line edit for a number with "." as its decimal sign, as the logic reads numbers.
QLineEdit* numberEdit(QWidget* parent, const char* objectName);
