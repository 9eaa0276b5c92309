#include "dialog/OptionRow.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QSlider>
#include <QStandardItemModel>
#include <algorithm>
#include <cmath>
#include <vector>

#include "dialog/NumberBox.h"

namespace kwopde::dialog {

namespace {

/// How many choices a menu shows at once.
constexpr int kLongMenu = 20;

/// Returns `number` as people write it in `control`, with its unit.
QString textOf(double number, const QWidget &control) {
  const QString text = QLocale().toString(number, 'f', control.property("decimals").toInt());
  const QString unit = control.property("unit").toString();
  return unit.isEmpty() ? text : text + ' ' + unit;
}

/// Returns the numbers that the option lists, in order; none when it takes those between them too.
std::vector<double> onlyNumbers(ppd_file_t *ppd, const std::string &key) {
  const ppd_option_t *option = ppdFindOption(ppd, key.c_str());
  if (!option || host::customLimits(ppd, *option)) return {};
  std::vector<double> numbers;
  for (int i = 0; i < option->num_choices; ++i)
    if (const auto number = host::wholeNumber(option->choices[i].choice))
      numbers.push_back(*number);
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

/// Lets `slider` reach all of `range`, and no more.
void setRange(QSlider &slider, const host::NumberRange &range) {
  const double step = slider.property("step").toDouble();
  const double stepsPerUnit = step > 0 ? std::round(1 / step) : 1;
  const auto position = [&](double number) {
    return static_cast<int>(std::round(std::clamp(number * stepsPerUnit, -1e9, 1e9)));
  };
  slider.setRange(position(range.minimum), position(range.maximum));
}

}  // namespace

OptionRow::OptionRow(const Panel &panel, const PanelOption &option, const host::PpdSession &session,
                     QObject *parent)
    : QObject(parent),
      panel_(panel),
      option_(option),
      session_(session),
      menu_(widgetAt<QComboBox>(option.popUp)),
      field_(widgetAt<QLineEdit>(option.field)),
      slider_(widgetAt<QSlider>(option.slider)) {
  if (menu_) prepareMenu();
  prepareCaption();
  if (field_) prepareNumber();
}

void OptionRow::prepareMenu() {
  const ppd_option_t *option = ppdFindOption(session_.ppd().get(), option_.key.c_str());
  if (!option) menu_->setPlaceholderText(tr("Not available"));
  if (!option || option->num_choices <= kLongMenu) return;
  // Many styles open all of a menu at once, from edge to edge of the screen.
  menu_->setStyleSheet("QComboBox { combobox-popup: 0; }");
  menu_->setMaxVisibleItems(kLongMenu);
}

void OptionRow::prepareNumber() {
  auto *text = inspectorOf(panel_)->control<TextField>(option_.field);
  const auto range = session_.range(option_.key);
  auto *box = new NumberBox(*field_, *text, range, onlyNumbers(session_.ppd().get(), option_.key));
  connect(box, &NumberBox::edited, this, &OptionRow::edited);
  connect(field_, &QLineEdit::editingFinished, this, [this] {
    if (!field_->isModified()) return;
    emit finished();
    field_->setModified(false);
  });
  if (slider_) {
    auto *slider = inspectorOf(panel_)->control<Slider>(option_.slider);
    connect(box, &NumberBox::edited, slider_,
            [text, slider] { slider->setDoubleValue(text->doubleValue()); });
    connect(slider_, &QSlider::valueChanged, this, &OptionRow::edited);
  }
  if (!range) return;
  const QString ends =
      tr("%1 to %2")
          .arg(QLocale().toString(range->minimum, 'f', field_->property("decimals").toInt()),
               textOf(range->maximum, *field_));
  QString tip = field_->toolTip().isEmpty() ? ends : tr("%1: %2").arg(field_->toolTip(), ends);
  if (slider_) {
    setRange(*slider_, *range);
    // Where the picture stays as it is, or else what the printer does unless told otherwise.
    const QVariant neutral = slider_->property("neutral");
    const double number = neutral.toDouble();
    if (neutral.isValid() && number >= range->minimum && number <= range->maximum)
      tip = tr("%1; %2 changes nothing").arg(tip, textOf(number, *field_));
    else if (const auto byDefault = defaultNumber(); byDefault && !neutral.isValid()) {
      slider_->setProperty("neutral", *byDefault);
      tip = tr("%1; %2 is the printer's default").arg(tip, textOf(*byDefault, *field_));
    }
    slider_->setToolTip(tip);
  }
  box->setToolTip(tip);
  field_->setToolTip(tip);
}

void OptionRow::prepareCaption() {
  const QWidget *control = menu_ ? static_cast<QWidget *>(menu_) : field_;
  if (!control) return;
  for (QLabel *label : control->parentWidget()->findChildren<QLabel *>())
    if (label->buddy() && (label->buddy() == control || label->buddy() == slider_))
      caption_ = label;
  if (!caption_) return;
  // Room for bold letters, so that nothing moves.
  QFont bold = caption_->font();
  bold.setBold(true);
  caption_->setMinimumWidth(
      QFontMetrics(bold).size(Qt::TextShowMnemonic, caption_->text()).width());
}

QString OptionRow::number() const {
  if (!field_) return {};
  return slider_ ? slider_->accessibleName() : field_->accessibleName();
}

bool OptionRow::isAvailable() const {
  return session_.defaultChoice(option_.key).has_value();
}

bool OptionRow::differs() const {
  if (!isAvailable()) return false;
  const auto *text = inspectorOf(panel_)->control<TextField>(option_.field);
  const auto number = defaultNumber();
  if (text && number) return text->doubleValue() != *number;
  return session_.markedChoice(option_.key) != session_.defaultChoice(option_.key);
}

std::optional<double> OptionRow::defaultNumber() const {
  const auto choice = session_.defaultChoice(option_.key);
  return choice ? host::choiceNumber(*choice) : std::nullopt;
}

void OptionRow::withholdCustom() {
  if (!menu_) return;
  const ppd_option_t *option = ppdFindOption(session_.ppd().get(), option_.key.c_str());
  if (!option || !ppdFindCustomOption(session_.ppd().get(), option->keyword)) return;
  auto *model = qobject_cast<QStandardItemModel *>(menu_->model());
  auto *list = qobject_cast<QListView *>(menu_->view());
  if (!model || !list) return;
  // The panel fills its menu anew, in the PPD's order.
  for (int i = 0; i < std::min(option->num_choices, model->rowCount()); ++i) {
    const bool isCustom = std::string_view(option->choices[i].choice) == host::kCustom;
    list->setRowHidden(i, isCustom);
    model->item(i)->setEnabled(!isCustom);
  }
}

void OptionRow::refresh() {
  withholdCustom();
  if (!caption_) return;
  QFont font;
  if (differs()) font.setBold(true);
  caption_->setFont(font);
}

template <class Widget>
Widget *OptionRow::widgetAt(std::string_view outlet) const {
  const PanelInspector *inspector = inspectorOf(panel_);
  const View *control = inspector ? inspector->control(outlet) : nullptr;
  return control ? qobject_cast<Widget *>(static_cast<QWidget *>(control->nativeView())) : nullptr;
}

}  // namespace kwopde::dialog
