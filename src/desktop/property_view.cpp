// Fields and buttons for the selection.
#include "desktop/property_view.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>
#include <utility>

#include "desktop/material_list.h"
#include "desktop/pipe_edits.h"
#include "desktop/qt_text.h"
#include "host/editor/pipe_marking.h"

namespace zwt {

namespace {

/// A field of pipes; choices are separated by commas.
struct PipeField {
  const wchar_t* key;
  const char16_t* label;
  const char16_t* choices = u"";
};

constexpr PipeField kFields[] = {
    {L"WtSystem", u"系统", u"给水,热水,污水,废水,消防"},
    {L"ELS_TYPE", u"角色", u"入口立管,立管,支管,干管"},
    {L"Material", u"管材"},
    {L"Diameter", u"公称直径(mm)", u"15,20,25,32,40,50,65,80,100,125,150,200"},
    {L"Equivalent", u"当量"},
    {L"Ration", u"用水定额(L/人·d)"},
    {L"Kh", u"小时变化系数"},
    {L"DoorNum", u"户数"},
    {L"UserNum", u"每户人数"},
    {L"Time", u"用水小时数(h)"},
    {L"Flux", u"额定流量(L/s)"},
    {L"Qmax", u"最大器具流量(L/s)"},
    {L"MaxDN", u"最大器具管径(mm)"},
    {L"TQType", u"通气形式", u"伸顶通气,专用通气,自循环通气"},
    {L"LayerNum", u"层数"},
    {L"IsTopHydrant", u"最不利消火栓", u"TRUE,FALSE"},
};

const auto kDiffers = QStringLiteral("（多种）");

QStringList ChoicesOf(const PipeField& field) {
  if (CString(field.key) == L"Material") return MaterialNames();
  return QString::fromUtf16(field.choices).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

}  // namespace

PropertyView::PropertyView(QWidget* parent)
    : QWidget(parent),
      summary_(new QLabel(this)),
      form_(new QWidget(this)),
      height_(new QDoubleSpinBox(this)),
      storeys_(new QSpinBox(this)) {
  setObjectName(QStringLiteral("propertyView"));
  summary_->setWordWrap(true);
  makePipes_ = AddButton(QStringLiteral("转为管道"), "makePipes", &PropertyView::MakePipes);
  propose_ = AddButton(QStringLiteral("建议系统和角色"), "propose", &PropertyView::Propose);
  copy_ = AddButton(QStringLiteral("向上复制"), "copyUpward", &PropertyView::CopyUpward);
  MakeFields(*form_);
  auto* scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setWidget(form_);
  constexpr double kUsualStorey = 2900;  // mm
  constexpr double kHighestStorey = 1e5;
  constexpr int kMostStoreys = 200;
  height_->setObjectName(QStringLiteral("storeyHeight"));
  height_->setDecimals(0);
  height_->setRange(1, kHighestStorey);
  height_->setValue(kUsualStorey);
  height_->setSuffix(QStringLiteral(" mm"));
  storeys_->setObjectName(QStringLiteral("storeys"));
  storeys_->setRange(1, kMostStoreys);
  storeys_->setSuffix(QStringLiteral(" 层"));
  auto* copying = new QHBoxLayout;
  copying->addWidget(height_);
  copying->addWidget(storeys_);
  copying->addWidget(copy_);
  auto* making = new QHBoxLayout;
  making->addWidget(makePipes_);
  making->addWidget(propose_);
  auto* all = new QVBoxLayout(this);
  all->addWidget(summary_);
  all->addLayout(making);
  all->addWidget(scroll, 1);
  all->addLayout(copying);
  Follow();
}

QPushButton* PropertyView::AddButton(const QString& text, const char* name, void (PropertyView::*act)()) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(QLatin1String(name));
  connect(button, &QPushButton::clicked, this, act);
  return button;
}

void PropertyView::MakeFields(QWidget& form) {
  auto* rows = new QFormLayout(&form);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  for (const PipeField& shape : kFields) {
    auto* field = new QComboBox(&form);
    field->setObjectName(QString::fromWCharArray(shape.key));
    field->setEditable(true);
    field->setInsertPolicy(QComboBox::NoInsert);
    field->setCompleter(nullptr);
    field->addItems(ChoicesOf(shape));
    field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const CString key = shape.key;
    connect(field, &QComboBox::activated, this, [this, key] { TakeField(key); });
    connect(field->lineEdit(), &QLineEdit::editingFinished, this, [this, key] { TakeField(key); });
    rows->addRow(QString::fromUtf16(shape.label), field);
    fields_[key] = field;
  }
}

QComboBox* PropertyView::FieldOf(const CString& key) const {
  const auto found = fields_.find(key);
  return found == fields_.end() ? nullptr : found->second;
}

void PropertyView::Show(std::vector<std::int32_t> entities) {
  entities_ = std::move(entities);
  Follow();
}

void PropertyView::Follow() {
  const std::size_t pipes = PipesAmong(entities_).size();
  const std::size_t lines = LinesAmong(entities_).size();
  QString text = QStringLiteral("未选择对象。");
  if (pipes + lines > 0) {
    text = QStringLiteral("选中管道 %1 根").arg(pipes);
    if (lines > 0) text += QStringLiteral("，不是管道的线 %1 条").arg(lines);
  }
  summary_->setText(text);
  makePipes_->setEnabled(lines > 0);
  propose_->setEnabled(pipes > 0);
  copy_->setEnabled(pipes > 0);
  form_->setEnabled(pipes > 0);
  for (const auto& [key, field] : fields_) ShowField(key, *field);
}

void PropertyView::ShowField(const CString& key, QComboBox& field) {
  const std::optional<CString> common = CommonField(entities_, key);
  const QString text = ToQt(common.value_or(CString()));
  const bool differs = !common && !PipesAmong(entities_).empty();
  field.lineEdit()->setPlaceholderText(differs ? kDiffers : QString());
  field.setCurrentIndex(field.findText(text));
  field.setEditText(text);
}

void PropertyView::TakeField(const CString& key) {
  const CString text = FromQt(fields_.at(key)->currentText().trimmed());
  const std::optional<CString> common = CommonField(entities_, key);
  // A field that shows nothing because the pipes differ takes nothing from them.
  if (PipesAmong(entities_).empty() || text == common.value_or(CString())) return;
  const std::vector<std::int32_t> pipes = PipesAmong(entities_);
  if (MarkPipes(WorkingDrawing(), pipes, {.fields = {{key, text}}}) == Acad::eOk) {
    Note(key + L" = " + text + L"：" + std::to_wstring(pipes.size()) + L" 根管道");
  }
  Follow();
}

void PropertyView::MakePipes() {
  const std::vector<std::int32_t> lines = LinesAmong(entities_);
  const PipeMarking marking = {.fields = {{L"Kind", L"0"}}, .proposeSystem = true, .proposeRole = true};
  if (MarkPipes(WorkingDrawing(), lines, marking) == Acad::eOk) {
    Note(std::to_wstring(lines.size()) + L" 条线已转为管道");
  }
  Follow();
}

void PropertyView::Propose() {
  const std::vector<std::int32_t> pipes = PipesAmong(entities_);
  MarkPipes(WorkingDrawing(), pipes, {.fields = {}, .proposeSystem = true, .proposeRole = true});
  Follow();
}

void PropertyView::CopyUpward() {
  const CopyCount count = CopyStoreyUpward(entities_, height_->value(), storeys_->value());
  CString text = L"已复制 " + std::to_wstring(count.copied) + L" 根管道";
  if (count.leftOut > 0) text += L"，" + std::to_wstring(count.leftOut) + L" 根不是直线，未复制";
  Note(text);
  Follow();
}

void PropertyView::Note(const CString& text) const {
  if (onNote) onNote(L"\n" + text);
}

}  // namespace zwt
