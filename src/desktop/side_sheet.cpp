// Two pages: steps and curves.
#include "desktop/side_sheet.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QVBoxLayout>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

QString Escaped(const CString& text) {
  return ToQt(text).toHtmlEscaped();
}

}  // namespace

QString TracePage(const CString& title, const Trace& trace) {
  QString page = QStringLiteral("<h3>%1</h3>").arg(Escaped(title));
  for (const TraceStep& step : trace) {
    page += QStringLiteral("<p><b>%1</b><br>").arg(Escaped(step.subject));
    const QString equals = step.formula.empty() ? QString() : QStringLiteral("= ");
    if (!step.formula.empty()) page += equals + Escaped(step.formula) + QStringLiteral("<br>");
    if (!step.substitution.empty()) page += equals + Escaped(step.substitution) + QStringLiteral("<br>");
    page += QStringLiteral("= <b>%1</b>").arg(Escaped(step.result));
    if (!step.source.empty()) page += QStringLiteral("<br><small>%1</small>").arg(Escaped(step.source));
    page += QStringLiteral("</p>");
  }
  return page;
}

SideSheet::SideSheet(QWidget* panel)
    : QDialog(panel, Qt::Tool),
      onAskPicture([this] {
        return QFileDialog::getSaveFileName(this, QStringLiteral("保存图片"), QString(),
                                            QStringLiteral("PNG (*.png)"));
      }),
      pages_(new QTabWidget(this)),
      text_(new QTextBrowser(this)),
      curves_(new QWidget(this)),
      choice_(new QComboBox(curves_)),
      plot_(new ProfilePlot(curves_)) {
  setObjectName(QStringLiteral("sideSheet"));
  setWindowTitle(QStringLiteral("计算过程"));
  constexpr int kWidth = 460;
  constexpr int kHeight = 520;
  resize(kWidth, kHeight);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(pages_);
  pages_->addTab(text_, QStringLiteral("公式"));
  pages_->addTab(curves_, QStringLiteral("曲线"));
  MakeCurvesPage();
  Explain({}, {});
  ShowProfiles({});
}

void SideSheet::MakeCurvesPage() {
  auto* layout = new QVBoxLayout(curves_);
  auto* row = new QHBoxLayout();
  auto* save = new QPushButton(QStringLiteral("保存图片"), curves_);
  save->setObjectName(QStringLiteral("savePicture"));
  save->setAutoDefault(false);
  row->addWidget(choice_, 1);
  row->addWidget(save);
  layout->addLayout(row);
  layout->addWidget(plot_, 1);
  connect(choice_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (index >= 0 && index < static_cast<int>(profiles_.size()))
      plot_->Show(profiles_[static_cast<std::size_t>(index)]);
  });
  connect(save, &QPushButton::clicked, this, [this] { SavePicture(); });
}

void SideSheet::Explain(const CString& title, const Trace& trace) {
  text_->setHtml(trace.empty() ? QStringLiteral("<p>请先计算，再在表格中选择一行。</p>")
                               : TracePage(title, trace));
}

void SideSheet::ShowProfiles(const std::vector<OverlayProfile>& profiles) {
  const int before = choice_->currentIndex();
  profiles_ = profiles;
  choice_->clear();
  for (const OverlayProfile& profile : profiles_) choice_->addItem(ToQt(profile.title));
  if (before >= 0 && before < choice_->count()) choice_->setCurrentIndex(before);
  pages_->setTabVisible(pages_->indexOf(curves_), !profiles_.empty());
}

void SideSheet::SavePicture() {
  const QString file = onAskPicture();
  if (file.isEmpty() || plot_->SavePicture(file)) return;
  QMessageBox::critical(this, windowTitle(), QStringLiteral("无法写入 %1").arg(file));
}

}  // namespace zwt
