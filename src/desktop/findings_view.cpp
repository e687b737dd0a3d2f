// List of findings.
#include "desktop/findings_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/material_list.h"
#include "desktop/pipe_edits.h"
#include "desktop/qt_text.h"

namespace zwt {

namespace {

/// Drawings with so many entities are checked after every change, larger ones when the user asks for it.
constexpr std::int32_t kCheckedAtOnce = 5000;

CheckSettings SettingsOfCheck() {
  CheckSettings settings;
  const QStringList names = MaterialNames();
  if (names.isEmpty()) return settings;
  settings.materials.emplace();
  for (const QString& name : names) settings.materials->push_back(FromQt(name));
  return settings;
}

}  // namespace

FindingsView::FindingsView(QWidget* parent)
    : QWidget(parent),
      summary_(new QLabel(this)),
      list_(new QListWidget(this)),
      close_(new QPushButton(QStringLiteral("闭合缝隙"), this)) {
  setObjectName(QStringLiteral("findingsView"));
  auto* check = new QPushButton(QStringLiteral("检查图面"), this);
  check->setObjectName(QStringLiteral("checkDrawing"));
  connect(check, &QPushButton::clicked, this, &FindingsView::Check);
  close_->setObjectName(QStringLiteral("closeGaps"));
  connect(close_, &QPushButton::clicked, this, &FindingsView::CloseAllGaps);
  list_->setWordWrap(true);
  connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    if (onShow) onShow(findings_[static_cast<std::size_t>(list_->row(item))]);
  });
  summary_->setWordWrap(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(check);
  buttons->addWidget(close_);
  auto* all = new QVBoxLayout(this);
  all->addLayout(buttons);
  all->addWidget(summary_);
  all->addWidget(list_, 1);
  Reset();
}

void FindingsView::Check() {
  checked_ = true;
  findings_ = CheckDrawing(WorkingDrawing(), SettingsOfCheck());
  list_->clear();
  for (const Finding& finding : findings_) {
    QString handles;
    for (const std::uint64_t handle : finding.handles) {
      handles +=
          (handles.isEmpty() ? QString() : QStringLiteral(" ")) + QString::number(handle, 16).toUpper();
    }
    list_->addItem(QStringLiteral("%1（%2）").arg(ToQt(finding.text), handles));
  }
  summary_->setText(findings_.empty() ? QStringLiteral("没有发现问题。")
                                      : QStringLiteral("发现 %1 处问题，点击查看。").arg(findings_.size()));
  close_->setEnabled(std::any_of(findings_.begin(), findings_.end(),
                                 [](const Finding& finding) { return finding.kind == "gap"; }));
}

void FindingsView::Follow() {
  if (!checked_) return;
  if (WorkingDrawing().EntityCount() <= kCheckedAtOnce) {
    Check();
  } else {
    summary_->setText(QStringLiteral("图面已改动，请重新检查。"));
  }
}

void FindingsView::Reset() {
  checked_ = false;
  findings_.clear();
  list_->clear();
  summary_->setText(QStringLiteral("尚未检查。"));
  close_->setEnabled(false);
}

void FindingsView::CloseAllGaps() {
  const std::int32_t closed = CloseGaps(findings_);
  if (onNote) onNote(L"\n已闭合 " + std::to_wstring(closed) + L" 处缝隙。");
  Check();
}

}  // namespace zwt
