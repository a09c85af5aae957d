// The combo box that comes on show without a list, and is otherwise like the toolkit's own.

#include "dialogs/combobox.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QTest>

using Hint = QSize (QComboBox::*)() const;
Q_DECLARE_METATYPE(Hint)

namespace {

/// A window with the box and, beside it, one of the toolkit's own.
class Boxes : public QWidget
{
public:
    Boxes();

    void setPointSize(int size);
    bool hasList() const { return box.findChild<QAbstractItemView*>() != nullptr; }
    int listPointSize();

    ComboBox box;
    QComboBox toolkitBox;
};

Boxes::Boxes()
{
    auto* layout = new QHBoxLayout(this);
    for (QComboBox* each : {static_cast<QComboBox*>(&box), &toolkitBox}) {
        each->addItems({"10 minutes", "4 hours"});
        layout->addWidget(each);
    }
}

void Boxes::setPointSize(int size)
{
    setStyleSheet(QStringLiteral("font-size: %1pt").arg(size));
}

int Boxes::listPointSize()
{
    box.showPopup();
    const int size = box.view()->font().pointSize();
    box.hidePopup();
    return size;
}

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    int count() const { return paints; }

private:
    int paints = 0;
};

/// A box on show, the size of which was given, so that nobody asks for it.
class LoneBox
{
public:
    LoneBox();

    QWidget window;
    ComboBox box{&window};
};

LoneBox::LoneBox()
{
    box.addItem("10 minutes");
    box.resize(200, 60);
    const PaintCounter paints(&box);
    window.show();
    if (!QTest::qWaitFor([&paints] { return paints.count() > 0; }))
        qFatal("the box was never painted");
}

} // namespace

class TestComboBox : public QObject
{
    Q_OBJECT

private slots:
    void makesItsListWhenOpened();
    void disablingClosesTheList();
    void fontIsShown();
    void listHasTheLatestFont();
    void listMadeBeforeFollowsTheFont();
    void keptSizeFollowsTheFont_data();
    void keptSizeFollowsTheFont();
    void shownSizeFollowsTheFont();
};

void TestComboBox::makesItsListWhenOpened()
{
    Boxes boxes;
    boxes.setPointSize(14);
    boxes.show();
    QVERIFY(QTest::qWaitForWindowExposed(&boxes));
    QVERIFY(!boxes.hasList());
    QVERIFY(boxes.toolkitBox.findChild<QAbstractItemView*>() != nullptr);
    boxes.box.showPopup();
    QVERIFY(boxes.hasList());
}

void TestComboBox::disablingClosesTheList()
{
    LoneBox lone;
    lone.box.showPopup();
    QVERIFY(lone.box.view()->isVisible());
    lone.box.setEnabled(false);
    QVERIFY(!lone.box.view()->isVisible());
}

void TestComboBox::fontIsShown()
{
    LoneBox lone;
    PaintCounter paints(&lone.box);
    QFont font = lone.box.font();
    font.setPointSize(24);
    lone.box.setFont(font);
    QTRY_VERIFY(paints.count() > 0);
}

void TestComboBox::listHasTheLatestFont()
{
    Boxes boxes;
    boxes.setPointSize(14);
    boxes.show();
    QCOMPARE(boxes.listPointSize(), 14);
    boxes.setPointSize(20);
    QCOMPARE(boxes.listPointSize(), 20);
    boxes.hide();
    boxes.setPointSize(8);
    boxes.show();
    QCOMPARE(boxes.listPointSize(), 8);
}

// Somebody asked for the list before the box was opened.
void TestComboBox::listMadeBeforeFollowsTheFont()
{
    Boxes boxes;
    QVERIFY(boxes.box.view() != nullptr);
    boxes.setPointSize(14);
    boxes.show();
    QCOMPARE(boxes.listPointSize(), 14);
}

void TestComboBox::keptSizeFollowsTheFont_data()
{
    QTest::addColumn<Hint>("hint");
    QTest::newRow("size hint") << Hint(&QComboBox::sizeHint);
    QTest::newRow("minimum size hint") << Hint(&QComboBox::minimumSizeHint);
}

void TestComboBox::keptSizeFollowsTheFont()
{
    QFETCH(const Hint, hint);
    Boxes boxes;
    const QSize before = (boxes.box.*hint)();
    QCOMPARE(before, (boxes.toolkitBox.*hint)());
    boxes.setPointSize(24);
    boxes.box.ensurePolished();
    boxes.toolkitBox.ensurePolished();
    QCOMPARE((boxes.box.*hint)(), (boxes.toolkitBox.*hint)());
    QVERIFY((boxes.box.*hint)().height() > before.height());
}

void TestComboBox::shownSizeFollowsTheFont()
{
    Boxes boxes;
    for (const int size : {24, 12, 30}) {
        boxes.setPointSize(size);
        boxes.show();
        QVERIFY(QTest::qWaitForWindowExposed(&boxes));
        QCOMPARE(boxes.box.size(), boxes.toolkitBox.size());
        QCOMPARE(boxes.box.sizeHint(), boxes.toolkitBox.sizeHint());
        boxes.hide();
    }
}

QTEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
