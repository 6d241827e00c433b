#include <LibControl/widgets/adjustappearance.h>

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

QLabel *labelIn(QWidget *parent, const char *name)
{
    auto label = new QLabel(QStringLiteral("text"), parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

class tst_AdjustAppearance : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void buttonPolicyTransposed_data()
    {
        QTest::addColumn<int>("horizontal");
        QTest::addColumn<int>("vertical");
        QTest::newRow("minimum becomes vertical") << int(QSizePolicy::Minimum) << int(QSizePolicy::Fixed);
        QTest::newRow("expanding becomes vertical") << int(QSizePolicy::Expanding) << int(QSizePolicy::Preferred);
        QTest::newRow("ignored becomes vertical") << int(QSizePolicy::Ignored) << int(QSizePolicy::Maximum);
    }

    void buttonPolicyTransposed()
    {
        QFETCH(int, horizontal);
        QFETCH(int, vertical);
        QWidget root;
        auto frame = new QFrame(&root);
        auto button = new QPushButton(QStringLiteral("OK"), frame);
        QSizePolicy policy { QSizePolicy::Policy(horizontal), QSizePolicy::Policy(vertical) };
        policy.setHorizontalStretch(3);
        policy.setVerticalStretch(2);
        button->setSizePolicy(policy);

        genAdjustWidgetAppearanceToOS(&root);

        QCOMPARE(int(button->sizePolicy().horizontalPolicy()), int(QSizePolicy::Fixed));
        QCOMPARE(int(button->sizePolicy().verticalPolicy()), horizontal);
        QCOMPARE(button->sizePolicy().horizontalStretch(), 0);
        QCOMPARE(button->sizePolicy().verticalStretch(), 0);
        QCOMPARE(button->minimumHeight(), 32);
        QCOMPARE(button->maximumHeight(), 32);
    }

    void labelFonts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("adjusted");
        QTest::newRow("ordinary label") << "lblMsg1" << true;
        QTest::newRow("unnamed label") << "" << true;
        QTest::newRow("about title") << "aboutTitleLabel" << false;
        QTest::newRow("about version") << "aboutVersionLabel" << false;
        QTest::newRow("about, other subject") << "aboutCopyrightLabel" << false;
        QTest::newRow("about, capital A") << "AboutTitleLabel" << true;
        QTest::newRow("about, lower-case label") << "aboutTitlelabel" << true;
    }

    void labelFonts()
    {
        QFETCH(QString, name);
        QFETCH(bool, adjusted);
        QWidget root;
        QFont small = root.font();
        small.setPointSize(9);
        root.setFont(small);
        auto label = labelIn(&root, name.toLatin1().constData());

        genAdjustWidgetAppearanceToOS(&root);

        QCOMPARE(label->font().pointSize(), adjusted ? 14 : 9);
    }

    void aboutLabelSubtreeSkipped()
    {
        QWidget root;
        auto about = new QFrame(&root);
        about->setObjectName(QStringLiteral("aboutTitleLabel"));
        auto inner = new QPushButton(about);
        auto sibling = new QPushButton(&root);

        genAdjustWidgetAppearanceToOS(&root);

        QCOMPARE(inner->maximumHeight(), QWIDGETSIZE_MAX);
        QCOMPARE(sibling->maximumHeight(), 32);
    }

    void onlyLeavesChange()
    {
        QLabel root(QStringLiteral("root"));
        root.setFont(QFont(root.font().family(), 9));
        new QObject(&root); // a non-widget child is passed over
        auto deep = new QFrame(new QFrame(&root));
        auto deepLabel = labelIn(deep, "deep");
        auto parentLabel = labelIn(&root, "parent");
        new QObject(parentLabel); // has a child, so it is walked into, not changed
        auto check = new QCheckBox(QStringLiteral("check"), &root);

        genAdjustWidgetAppearanceToOS(&root);

        QCOMPARE(root.font().pointSize(), 9);
        QCOMPARE(deepLabel->font().pointSize(), 14);
        QCOMPARE(parentLabel->font().pointSize(), 9);
        QCOMPARE(check->font().pointSize(), 9);
    }

    void nullRoot() { genAdjustWidgetAppearanceToOS(nullptr); }
};

QTEST_MAIN(tst_AdjustAppearance)
#include "tst_adjustappearance.moc"
