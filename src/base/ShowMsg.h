#pragma once

#include <QList>
#include <QString>

class MessageSink;

// Button codes a message box returns.
enum MsgButton : int {
    kOK = 1,
    kCancel = 2,
    kAbort = 3,
    kRetry = 4,
    kIgnore = 5,
    kYes = 6,
    kNo = 7
};

// Box flags: the low three bits pick the buttons, the icon is added.
enum MsgFlags : int {
    kFlagOK = 0,
    kFlagOKCancel = 1,
    kFlagAbortRetryIgnore = 2,
    kFlagYesNoCancel = 3,
    kFlagYesNo = 4,
    kFlagRetryCancel = 5,
    kFlagCritical = 16,
    kFlagQuestion = 32,
    kFlagExclamation = 48,
    kFlagInformation = 64,
};

// The kinds of ShowMsg.
enum MsgKind : int {
    kMsgQuestion = 1,     // Yes/No question
    kMsgWarning = 2,      // OK, exclamation; default text message 561
    kMsgCritical = 3,     // OK, critical; title message 269
    kMsgInformation = 4,  // OK, information; default text message 563
    kMsgOkCancel = 5,     // OK/Cancel question
    kMsgQuestionNote = 6, // Yes/No question, message 577 on a line of its own appended
    kMsgDone = 7,         // OK, information; default text message 360
};

// The one message box of the system. Kinds: 1 Yes/No question, 2 OK exclamation (default text
// message 561), 3 OK critical (title message 269), 4 OK information (default text 563),
// 5 OK/Cancel question, 6 Yes/No question with a line break and message 577 always appended,
// 7 OK information (default text 360). The title defaults to message 268. Returns the button.
int ShowMsg(int kind, const QString& text = QString(), const QString& title = QString());

// The flags of a ShowMsg kind (36, 48, 16, 64, 33, 36, 64); 0 for an unknown kind.
int ShowMsgFlags(int kind);

// A box with explicit flags, straight to the message sink (frmMessageBox.MsgBox).
int MsgBox(const QString& text, int flags, const QString& title);

// A button of frmMessageBox: its code and the message number of its caption.
struct MessageBoxButton {
    int code;
    int captionMessage;
    bool operator==(const MessageBoxButton&) const = default;
};

// The buttons for a set of flags, left to right: OK 46, Cancel 47, Abort 263, Retry 264,
// Ignore 265, Yes 266, No 267. An unknown set gives OK alone.
QList<MessageBoxButton> messageBoxButtons(int flags);

// Where boxes go. nullptr restores the default, which writes the box to stderr and answers with
// its first button. The sink is not owned.
void setMessageSink(MessageSink* sink);
MessageSink& messageSink();
