#include "trend/AlarmSymbolSettings.h"

#include "base/LanguageTable.h"
#include "trend/AlarmMarks.h"
#include "trend/TrendView.h"

AlarmSymbolSettings::AlarmSymbolSettings(TrendView& view)
    : v_(view), working_(AlarmStyle::of(view.state())), opening_(working_),
      openingShow_(AlarmMarks::ShowAlarmMarks(view.GetGroup())) {
    chkShow = openingShow_;
}

int AlarmSymbolSettings::channelCount() const {
    return std::min<int>(v_.tables().ChannelCount, MaxChannels);
}

QString AlarmSymbolSettings::rowHeader(int channel) const {
    if (channel < 1 || channel > channelCount()) return QString();
    return v_.tables().Channels.ChTag[size_t(channel)].trimmed();
}

QString AlarmSymbolSettings::columnHeader(int column) const {
    if (column < 1 || column > kLevels * kColumnsPerLevel) return QString();
    const QString level = QString::number(levelOfColumn(column));
    QString head;
    switch (kindOfColumn(column)) {
    case 0:
        head = MsgText(201);
        break;
    case 1:
        head = MsgText(28);
        break;
    default:
        head = MsgText(219);
        break;
    }
    return head + level + QLatin1Char('\n') + MsgText(229);
}

void AlarmSymbolSettings::apply(const AlarmStyle& style, bool show, Progress* progress) {
    style.applyTo(v_.state());
    AlarmMarks::ShowAlarmMarks(v_.GetGroup()) = show;
    AlarmMarks marks(v_);
    marks.clear();
    marks.draw(progress);
}

void AlarmSymbolSettings::preview(Progress* progress) {
    previewed_ = true;
    apply(working_, chkShow, progress);
}

void AlarmSymbolSettings::OK(Progress* progress) {
    if (channelCount() == 0) {
        AlarmMarks::ShowAlarmMarks(v_.GetGroup()) = chkShow;
        return;
    }
    apply(working_, chkShow, progress);
}

void AlarmSymbolSettings::Cancel(Progress* progress) {
    if (!previewed_) return;
    apply(opening_, openingShow_, progress);
    previewed_ = false;
}
