// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/debugrecord.h"

#include "app/systeminfo.h"
#include "ui_debugrecord.h"

#include <QScrollBar>
#include <QTime>

#include <iterator>

namespace {

// By the value of QtMsgType.
const char* const prefixes[] = {"[DEBUG-", "[WARNING-", "[CRITICAL-", "[FATAL-", "[INFO-"};

} // namespace

DebugRecord::DebugRecord(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::DebugRecord>())
{
    ui_->setupUi(this);
    ui_->listView->setModel(&model_);
    ui_->listView->setItemDelegate(&delegate_);
    setFocusProxy(ui_->listView);
    follow_.setSingleShot(true);
    connect(&follow_, &QTimer::timeout, ui_->listView, &QListView::scrollToBottom);
    append(tr("[START]Debug mod is working,Waiting to record"));
    connect(SystemInfo::instance(), &SystemInfo::debugMsg, this, &DebugRecord::showDebug);
    connect(SystemInfo::instance(), &SystemInfo::languageChangedMsg, this,
        [this] { ui_->retranslateUi(this); });
}

DebugRecord::~DebugRecord() = default;

void DebugRecord::showDebug(QtMsgType type, const QString& data)
{
    const auto value = static_cast<std::size_t>(type);
    if (value >= std::size(prefixes))
        return;
    append(
        QLatin1String(prefixes[value]) + QTime::currentTime().toString() + QLatin1Char(']') + data);
}

void DebugRecord::append(const QString& line)
{
    const QScrollBar* bar = ui_->listView->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    const int row = model_.rowCount();
    model_.insertRows(row, 1);
    model_.setData(model_.index(row), line);
    if (model_.rowCount() > maxLines)
        model_.removeRows(0, model_.rowCount() - maxLines);
    delegate_.makeRoom(line, model_.index(0), ui_->listView->fontMetrics());
    if (atEnd)
        follow_.start(0);
}
