#include "base/ShowMsg.h"

#include "base/LanguageTable.h"
#include "base/MessageSink.h"

#include <cstdio>

namespace {

// A headless program has no one to ask: the box is printed and its first button taken.
class StderrMessageSink final : public MessageSink {
public:
    int show(const QString& text, int flags, const QString& title) override {
        const QString line = title.isEmpty() ? text : title + QStringLiteral(": ") + text;
        std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
        return messageBoxButtons(flags).first().code;
    }
};

MessageSink*& currentSink() {
    static MessageSink* sink = nullptr;
    return sink;
}

} // namespace

void setMessageSink(MessageSink* sink) {
    currentSink() = sink;
}

MessageSink& messageSink() {
    static StderrMessageSink fallback;
    return currentSink() ? *currentSink() : fallback;
}

QList<MessageBoxButton> messageBoxButtons(int flags) {
    const MessageBoxButton ok{kOK, MsgId(46)};
    const MessageBoxButton cancel{kCancel, MsgId(47)};
    const MessageBoxButton abort{kAbort, MsgId(263)};
    const MessageBoxButton retry{kRetry, MsgId(264)};
    const MessageBoxButton ignore{kIgnore, MsgId(265)};
    const MessageBoxButton yes{kYes, MsgId(266)};
    const MessageBoxButton no{kNo, MsgId(267)};
    switch (flags & 7) {
    case kFlagOKCancel:
        return {ok, cancel};
    case kFlagAbortRetryIgnore:
        return {abort, retry, ignore};
    case kFlagYesNoCancel:
        return {yes, no, cancel};
    case kFlagYesNo:
        return {yes, no};
    case kFlagRetryCancel:
        return {retry, cancel};
    default:
        return {ok};
    }
}

int MsgBox(const QString& text, int flags, const QString& title) {
    return messageSink().show(text, flags, title);
}

int ShowMsgFlags(int kind) {
    static constexpr int kFlags[] = {36, 48, 16, 64, 33, 36, 64};
    return kind >= 1 && kind <= 7 ? kFlags[kind - 1] : 0;
}

int ShowMsg(int kind, const QString& text, const QString& title) {
    QString body = text;
    if (body.isEmpty()) {
        if (kind == kMsgWarning)
            body = MsgText(561);
        else if (kind == kMsgInformation)
            body = MsgText(563);
        else if (kind == kMsgDone)
            body = MsgText(360);
    }
    if (kind == kMsgQuestionNote) body += QLatin1Char('\n') + MsgText(577);
    QString caption = title;
    if (caption.isEmpty()) caption = kind == kMsgCritical ? MsgText(269) : MsgText(268);
    return MsgBox(body, ShowMsgFlags(kind), caption);
}
