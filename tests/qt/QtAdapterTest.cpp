// Real input on real widgets, and interface files and translations that are not as they should be.
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "platform/Numbers.h"
#include "qt/ChoiceMenu.h"
#include "qt/QtBundle.h"
#include "qt/QtControls.h"
#include "qt/QtUserInput.h"
#include "tests/support/PanelFixture.h"

namespace kwopde::test {
namespace {

/// A shown pop-up or slider that counts its actions.
template <class Widget, class Control>
struct Counted {
  Counted() : control(&widget) {
    qt::connectAction(&widget, [this] { ++actions; });
    if constexpr (std::is_same_v<Widget, QComboBox>) widget.addItems({"a", "b", "c"});
    widget.show();
    QApplication::setActiveWindow(&widget);
    widget.setFocus();
  }
  void wheel(int steps) {
    const QPointF at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, steps * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }
  int actionsAfter(auto &&act) {
    actions = 0;
    act();
    return actions;
  }

  Widget widget;
  Control control;
  int actions = 0;
};

TEST(QtPopUpButton, ActsForTheUserAndNotForCode) {
  Counted<QComboBox, qt::QtPopUpButton> popUp;
  EXPECT_EQ(popUp.actionsAfter([&] { QTest::keyClick(&popUp.widget, Qt::Key_Down); }), 1);
  EXPECT_EQ(popUp.actionsAfter([&] { popUp.wheel(-1); }), 1);
  EXPECT_EQ(popUp.control.indexOfSelectedItem(), 2);
  EXPECT_EQ(popUp.actionsAfter([&] {
    popUp.widget.showPopup();
    auto *list = popUp.widget.view();
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_Return);
  }),
            1);
  EXPECT_EQ(popUp.control.indexOfSelectedItem(), 0);
  EXPECT_EQ(popUp.actionsAfter([&] {
    popUp.control.removeAllItems();
    for (int i = 0; i < 4; ++i) popUp.control.addItem({std::nullopt, nullptr});
    popUp.control.selectItemAtIndex(3);
    popUp.control.selectItemAtIndex(99);
    popUp.control.selectItemAtIndex(-1);
  }),
            0);
  EXPECT_EQ(popUp.control.indexOfSelectedItem(), 3);
}

TEST(QtSlider, ActsAtEveryStepOfTheUserAndNotForCode) {
  Counted<QSlider, qt::QtSlider> slider;
  slider.widget.setOrientation(Qt::Horizontal);
  slider.widget.resize(200, 30);
  EXPECT_EQ(slider.actionsAfter([&] { QTest::keyClick(&slider.widget, Qt::Key_Right); }), 1);
  EXPECT_EQ(slider.actionsAfter([&] { slider.wheel(1); }), 1);
  EXPECT_EQ(slider.actionsAfter(
                [&] { QTest::mouseClick(&slider.widget, Qt::LeftButton, {}, {190, 15}); }),
            1);
  slider.control.setIntValue(0);
  std::vector<int> seen;
  qt::connectAction(&slider.widget, [&] { seen.push_back(slider.control.intValue()); });
  QTest::mousePress(&slider.widget, Qt::LeftButton, {}, {5, 15});
  for (const int x : {60, 120, 190}) QTest::mouseMove(&slider.widget, {x, 15});
  QTest::mouseRelease(&slider.widget, Qt::LeftButton, {}, {190, 15});
  ASSERT_EQ(seen.size(), 3u);
  EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
  EXPECT_EQ(seen.back(), slider.widget.value());
  EXPECT_EQ(slider.actionsAfter([&] { slider.control.setIntValue(7); }), 0);
}

TEST(QtSlider, CarriesFractionsAndRestsAtItsEnds) {
  Counted<QSlider, qt::QtSlider> slider;
  slider.widget.setProperty("step", 0.001);
  slider.widget.setRange(100, 3000);
  for (const double value : {1.789, 1.15, 0.29}) {
    slider.control.setDoubleValue(value);
    EXPECT_EQ(slider.control.doubleValue(), value);
  }
  slider.control.setDoubleValue(1e300);
  EXPECT_EQ(slider.control.doubleValue(), 3);
  slider.control.setDoubleValue(-1e300);
  EXPECT_EQ(slider.control.doubleValue(), 0.1);
  slider.control.setDoubleValue(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(slider.control.doubleValue(), 0.1);
}

TEST(NumberSlider, IsFilledFromItsNeutralAndSpeaksAsANumber) {
  PanelOn<ColorPDE> on(option("colorMode", "C", "A", {{"A", "A"}}) +
                       option("imageGamma", "G", "1", {{"1", "1"}}));
  on.shown();
  auto &slider = on.widget<QSlider>("gammaSlider");
  // The neutral is at 31 percent, and nothing at 95 is ever filled.
  static_cast<QWidget *>(on.panel->pdeView->nativeView())->resize(600, 400);
  const auto isFilled = [&](int percent) {
    const QImage image = slider.grab().toImage();
    const auto at = [&](int x) { return image.pixel(image.width() * x / 100, image.height() / 2); };
    return at(percent) != at(95);
  };
  EXPECT_FALSE(isFilled(15));
  QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&slider);
  ASSERT_TRUE(told && told->valueInterface());
  EXPECT_EQ(told->text(QAccessible::Value), QString("1.00"));
  EXPECT_EQ(told->valueInterface()->maximumValue().toDouble(), 3);
  told->valueInterface()->setCurrentValue(2.5);  // as a person with a screen reader does
  EXPECT_EQ(on.panel->gammaValue, 2.5);
  EXPECT_TRUE(isFilled(55));
  EXPECT_FALSE(isFilled(15));
}

TEST(QtTextField, HasTheTextThatPeopleSee) {
  QLabel label("&Tom && Jerry");
  QLineEdit line("&a");
  qt::QtTextField caption(&label);
  EXPECT_EQ(caption.stringValue(), "&Tom && Jerry");
  label.setBuddy(&line);
  EXPECT_EQ(caption.stringValue(), "Tom & Jerry");
  caption.setStringValue("A&B");
  EXPECT_EQ(label.text(), QString("A&&B"));
  EXPECT_EQ(qt::QtTextField(&line).stringValue(), "&a");
}

TEST(QtTextField, HasNumbersAsPeopleWriteThem) {
  QLineEdit line;
  qt::QtTextField field(&line);
  const struct {
    QLocale locale;
    const char *typed;
    const char *read;
  } rows[] = {{QLocale(QLocale::German), "1,8", "1.8"},
              {QLocale(QLocale::German), "1.234,5 %", "1234.5 %"},
              {QLocale(QLocale::German), "1.8", "1.8"},  // no number there, so it stays
              {QLocale(QLocale::German), "-7", "-7"},
              {QLocale(QLocale::German), "99999999999", "99999999999"},
              {QLocale(QLocale::German), "%n, abc", "%n, abc"},
              {QLocale(QLocale::English), "1,000", "1000"},
              {QLocale::c(), "1,8", "1,8"}};
  const QLocale before;
  for (const auto &row : rows) {
    QLocale::setDefault(row.locale);
    line.setText(row.typed);
    EXPECT_EQ(field.stringValue(), row.read) << row.typed;
  }
  QLocale::setDefault(QLocale(QLocale::German));
  field.setDoubleValue(1.78);
  EXPECT_EQ(line.text(), QString("1,78"));
  EXPECT_EQ(field.doubleValue(), 1.78);
  field.setStringValue("100 %");
  EXPECT_EQ(line.text(), QString("100 %"));
  qt::QtUserInput().type(field, "1.78");  // what types for a person, not what a person types
  EXPECT_EQ(field.doubleValue(), 1.78);
  // Digits are added, never cut.
  line.setProperty("decimals", 2);
  for (const auto &[text, shown] : {std::pair("1", "1,00"),
                                    {"1.789", "1,789"},
                                    {"-0.5 %", "-0,50 %"},
                                    {"1e+20", "1e+20"},
                                    {"abc", "abc"}}) {
    field.setStringValue(text);
    EXPECT_EQ(line.text(), QString(shown));
    EXPECT_EQ(field.doubleValue(), leadingDouble(text));
  }
  // No language's decimal sign makes another number of it.
  for (const char *language : {"ar_EG", "fa_IR", "de_CH", "hi_IN", "sv_SE"}) {
    QLocale::setDefault(QLocale(language));
    for (const double number : {1.78, -7.5}) {
      field.setDoubleValue(number);
      EXPECT_EQ(field.doubleValue(), number) << language << line.text().toStdString();
    }
  }
  QLocale::setDefault(before);
}

TEST(QtControls, OfWidgetsThatAreGoneDoNothing) {
  auto box = std::make_unique<QComboBox>();
  qt::QtPopUpButton popUp(box.get());
  box.reset();
  popUp.addItem({"a", nullptr});
  popUp.selectItemAtIndex(0);
  popUp.setEnabled(true);
  EXPECT_FALSE(popUp.isEnabled());
  EXPECT_EQ(popUp.indexOfSelectedItem(), 0);
  EXPECT_EQ(popUp.nativeView(), nullptr);
  EXPECT_EQ(popUp.className(), "QComboBox");
}

/// A panel whose interface is what `make` makes.
struct PanelWithInterface : PanelOn<MediaPDE> {
  explicit PanelWithInterface(const std::function<QWidget *()> &make)
      : PanelOn(kMediaOptions), files2({{"MediaPDE", make}}) {}
  InterfaceFiles files2;
};

/// Adds a widget to `top`, as an interface file has it.
template <class Widget>
void add(QWidget *top, const char *name, const char *action = nullptr) {
  auto *widget = new Widget(top);
  widget->setObjectName(name);
  widget->setProperty("action", action);
}

TEST(QtInterfaceLoader, WithoutAnInterfaceThereIsNoView) {
  PanelWithInterface on([] { return nullptr; });
  EXPECT_EQ(on.panel->panelView(), nullptr);
  on.panel->willShow();
  EXPECT_TRUE(on.panel->shouldHide());
  EXPECT_EQ(on.panel->pageScaleValue, 0);
  EXPECT_FALSE(Bundle::loadNibNamed("Another", *on.panel));
}

TEST(QtInterfaceLoader, WrongControlsAndActionsStayUnconnected) {
  PanelWithInterface on([] {
    auto *top = new QWidget;
    add<QLineEdit>(top, "printQualityPopUp");
    add<QComboBox>(top, "printFinishPopUp", "none:");
    add<QComboBox>(top, "unknownPopUp");
    add<QPushButton>(top, "button", "none:");
    return top;
  });
  on.shown();
  EXPECT_FALSE(on.panel->printQualityPopUp);
  EXPECT_TRUE(on.panel->printFinishPopUp);
  on.user.pick(*on.panel->printFinishPopUp.get(), 1);
  EXPECT_THAT(on.host->requests, testing::IsEmpty());
  EXPECT_TRUE(
      on.panel->performAction("changePrintQualityOption:", nullptr));  // its outlet is missing
  EXPECT_THAT(on.host->requests, testing::ElementsAre("printQuality=nil"));
}

TEST(QtInterfaceLoader, PanelAndWidgetsMayDieInAnyOrder) {
  PanelOn<ColorPDE> on(option("colorMode", "C", "A", {{"A", "A"}}));
  on.shown();
  delete static_cast<QWidget *>(on.panel->pdeView->nativeView());
  on.panel->willShow();
  on.panel->shouldHide();
  EXPECT_EQ(on.panel->controls().front().control->nativeView(), nullptr);
}

// Every caption leads to its control by a mnemonic, no two alike, and every control has a name for
// those who cannot see it.
TEST(InterfaceFiles, CanBeUsedByKeyboardAndScreenReader) {
  const std::string all = kMediaOptions + option("colorMode", "C", "A", {{"A", "A"}}) +
                          option("sharpnessEnabled", "S", "A", {{"A", "A"}});
  PanelOn<MediaPDE> media(all);
  PanelOn<Media7032PDE> extended(all);
  PanelOn<ColorPDE> color(all);
  PanelOn<SharpenPDE> sharpen(all);
  for (PanelBase *panel : std::initializer_list<PanelBase *>{
           media.panel.get(), extended.panel.get(), color.panel.get(), sharpen.panel.get()}) {
    auto *view = static_cast<QWidget *>(panel->panelView()->nativeView());
    QStringList mnemonics;
    QSet<QWidget *> reached;
    for (const QLabel *label : view->findChildren<QLabel *>()) {
      ASSERT_NE(label->buddy(), nullptr) << label->objectName().toStdString();
      reached.insert(label->buddy());
      mnemonics.append(label->text().mid(label->text().indexOf('&') + 1, 1).toLower());
    }
    EXPECT_EQ(mnemonics.removeDuplicates(), 0) << panel->className();
    EXPECT_FALSE(view->whatsThis().isEmpty());
    for (QWidget *child : view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
      if (!qobject_cast<QComboBox *>(child) && !qobject_cast<QSlider *>(child) &&
          !qobject_cast<QLineEdit *>(child))
        continue;
      EXPECT_FALSE(child->accessibleName().isEmpty()) << child->objectName().toStdString();
      const bool besideSlider =
          child->objectName().endsWith("Label") && qobject_cast<QLineEdit *>(child);
      EXPECT_TRUE(besideSlider || reached.contains(child)) << child->objectName().toStdString();
    }
  }
}

TEST(ChoiceMenu, IsAsBigAsQtsOwnThatHasTheSameRoom) {
  QComboBox usual;
  usual.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  qt::ChoiceMenu menu;
  for (QComboBox *box : {&usual, static_cast<QComboBox *>(&menu)}) {
    box->setMinimumContentsLength(12);
    box->addItem(QString(100, 'W'));
    box->setFont(QFont("DejaVu Sans", 7));
  }
  EXPECT_EQ(menu.sizeHint(), usual.sizeHint());
  menu.setFont(QFont("DejaVu Sans", 30));
  usual.setFont(menu.font());
  EXPECT_EQ(menu.sizeHint(), usual.sizeHint());
}

TEST(QtBundle, SpeaksTheUsersLanguageElseEnglish) {
  const std::string unknown = "Unknown";
  const std::string value = "value";
  const struct {
    QLocale locale;
    const char *name;
  } rows[] = {{QLocale(QLocale::German), "Farbe"},
              {QLocale(QLocale::Welsh), "Color"},
              {QLocale::c(), "Color"}};
  const QLocale before;
  for (const auto &row : rows) {
    QLocale::setDefault(row.locale);
    const qt::QtBundle bundle(KWOPDE_TRANSLATIONS_FOLDER);
    EXPECT_EQ(bundle.localizedStringForKey("ColorPanelName", nullptr, nullptr), row.name);
    EXPECT_EQ(bundle.localizedStringForKey(unknown, &value, nullptr), value);
    EXPECT_EQ(bundle.localizedStringForKey(unknown, nullptr, &value), unknown);
  }
  QLocale::setDefault(before);
}

}  // namespace
}  // namespace kwopde::test
