#include <OrvUtils/QThemeCtrl.h>

#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <limits>

/// The macros sca(N) and var(Name) in style sheets.
class tst_QThemeCtrlMacros : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void macrosAreExpanded_data();
    void macrosAreExpanded();
    void unusableScaleCountsAsOne_data();
    void unusableScaleCountsAsOne();
    void unknownNameIsRemovedAndLoggedOnce();
    void logHandlerMayChangeTheValueThatIsExpanded();
    void nameThatRefersToItselfIsKeptAndLoggedOnce();
    void textThatIsNotANumberIsKeptAndLoggedOnce();
    void exponentiallyGrowingValueIsNotExpanded();
    void longChainOfNamesIsNotExpanded();
    void valueFollowsTheTheme();
    void deepNestingIsExpanded_data();
    void deepNestingIsExpanded();
    void largeSheetIsExpanded_data();
    void largeSheetIsExpanded();

private:
    static QString expand(const QString &sheet, double scale)
    {
        return QThemeCtrl::instance()->expandMacros(sheet, scale);
    }
};

void tst_QThemeCtrlMacros::initTestCase()
{
    QThemeCtrl *const theme = QThemeCtrl::instance();
    theme->setTheme(QThemeCtrl::Theme::Light);
    const auto set = [theme](const char *name, const char *value) {
        theme->setValue(QThemeCtrl::Theme::System, QString::fromUtf8(name),
                        QString::fromUtf8(value));
    };
    set("Radius", "6");
    set("Name", "Radius");
    set("Padding", "sca(3)px");
    set("Border", "sca(1)px solid var(Edge)");
    set("Edge", "red");
    set("Broken", "rgb(1, 2");
    set("Quoted", "\"Some Font\"");
    set("Größe", "8");
}

void tst_QThemeCtrlMacros::macrosAreExpanded_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *sheet, double scale, const char *expected) {
        QTest::newRow(name) << QString::fromUtf8(sheet) << scale << QString::fromUtf8(expected);
    };
    row("emptyTextStaysEmpty", "", 2, "");
    row("textWithoutMacrosIsKept", "QLabel { color: rgb(1, 2, 3); }", 2,
        "QLabel { color: rgb(1, 2, 3); }");
    row("numberIsScaled", "width: sca(10)px;", 1.5, "width: 15px;");
    row("adjacentMacrosAreScaled", "sca(4) sca(8)sca(9)", 2, "8 1618");
    row("halfIsRoundedUp", "sca(5)", 1.5, "8");
    row("lessThanHalfIsRoundedDown", "sca(7)", 1.33, "9");
    row("negativeHalfIsRoundedUp", "sca(-5)", 1.5, "-7");
    row("decimalIsScaled", "sca(0.5)px sca(.25)px sca(2.)px", 4, "2px 1px 8px");
    row("plusSignIsAccepted", "sca(+3)", 2, "6");
    row("smallNegativeIsPlainZero", "sca(-0.1)", 1, "0");
    row("blanksInsideAreSkipped", "sca(  4\t)px sca(\n4\n)px var( Radius )", 2, "8px 8px 6");
    row("hugeNumberIsClamped", "sca(99999999999999999999)", 2, "2147483647");
    row("hugeNegativeNumberIsClamped", "sca(-99999999999999999999)", 2, "-2147483647");
    row("nameIsReplaced", "border-radius: var(Radius)px;", 2, "border-radius: 6px;");
    row("nameMayContainAnyLetters", "var(Größe)", 2, "8");
    row("nameInsideANumberIsScaled", "sca(var(Radius))px", 2, "12px");
    row("nameMayBeTheValueOfAName", "var(var(Name))", 2, "6");
    row("numberInAValueIsScaled", "padding: var(Padding);", 2, "padding: 6px;");
    row("nameInAValueIsReplaced", "border: var(Border);", 3, "border: 3px solid red;");
    row("nestedScaleIsScaledTwice", "sca(sca(3))", 2, "12");
    row("valueWithAnOpenParenthesisDoesNotAffectTheRest", "var(Broken)) sca(2)", 2, "rgb(1, 2) 4");
    row("valueWithQuotesDoesNotAffectTheRest", "font: var(Quoted) /* var(X) */ sca(2)", 2,
        "font: \"Some Font\" /* var(X) */ 4");
    row("macroInsideAFunctionIsExpanded", "url(a/var(Radius)/sca(2))", 2, "url(a/6/4)");
    row("macroInAStringIsExpanded", "url(\":/icons/var(Radius).svg\")", 2,
        "url(\":/icons/6.svg\")");
    row("minusBeforeAMacroIsASign", "margin: -sca(4)px (-sca(4))", 2, "margin: -8px (-8)");
    row("macroMustBeAWholeWord", "xsca(2) my-sca(2) --sca(2) _sca(2) 9sca(2) äsca(2) xvar(Edge)", 2,
        "xsca(2) my-sca(2) --sca(2) _sca(2) 9sca(2) äsca(2) xvar(Edge)");
    row("capitalsAreNotAMacro", "SCA(2) Sca(2) VAR(Edge)", 2, "SCA(2) Sca(2) VAR(Edge)");
    row("blankBeforeTheParenthesisIsNotAMacro", "sca (2)", 2, "sca (2)");
    row("commentIsNotChanged", "/* sca(2) var(Nowhere) */ sca(2) /**/ sca(2)", 2,
        "/* sca(2) var(Nowhere) */ 4 /**/ 4");
    row("unterminatedCommentIsNotChanged", "sca(2) /* sca(2)", 2, "4 /* sca(2)");
    row("slashStarInAStringIsNotAComment", "url(\"a/*b\") sca(2) url('/*') sca(2)", 2,
        "url(\"a/*b\") 4 url('/*') 4");
    row("stringEndsWithItsLine", "url(\"broken\n/* sca(2) */ sca(2)", 2,
        "url(\"broken\n/* sca(2) */ 4");
    row("escapedQuoteDoesNotEndAString", "\"a\\\"/*\" sca(2)", 2, "\"a\\\"/*\" 4");
    row("otherQuoteDoesNotEndAString", "\"it's /*\" sca(2)", 2, "\"it's /*\" 4");
    row("trailingBackslashIsKept", "sca(2)\\", 2, "4\\");
    row("unclosedMacroIsKept", "sca(2", 2, "sca(2");
    row("unclosedMacroEndsWithItsRule", "width: sca(2; } A { color: rgb(1,2,3); width: sca(2)px }",
        2, "width: sca(2; } A { color: rgb(1,2,3); width: 4px }");
    row("unclosedNameDoesNotSwallowTheNextRule", "width: var(Radius; } A { height: 3px) }", 2,
        "width: var(Radius; } A { height: 3px) }");
    row("unclosedNameDoesNotSwallowAString", "url(var(Radius, \"a\"))", 2,
        "url(var(Radius, \"a\"))");
    row("strayParenthesesAreKept", ")) sca(2) ((", 2, ")) 4 ((");
    row("functionInsideANumberIsKept", "sca(f(2)) sca(2)", 2, "sca(f(2)) 4");
    row("numbersOfOtherFormsAreKept",
        "sca() sca(1e3) sca(0x10) sca(1 2) sca(1.2.3) sca(--1) sca(.) sca(inf)", 2,
        "sca() sca(1e3) sca(0x10) sca(1 2) sca(1.2.3) sca(--1) sca(.) sca(inf)");
}

void tst_QThemeCtrlMacros::macrosAreExpanded()
{
    QFETCH(QString, sheet);
    QFETCH(double, scale);
    QFETCH(QString, expected);
    QCOMPARE(expand(sheet, scale), expected);
}

void tst_QThemeCtrlMacros::unusableScaleCountsAsOne_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -2.0;
    QTest::newRow("notANumber") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
}

void tst_QThemeCtrlMacros::unusableScaleCountsAsOne()
{
    QFETCH(double, scale);
    QCOMPARE(expand(QStringLiteral("sca(7)"), scale), QStringLiteral("7"));
}

void tst_QThemeCtrlMacros::unknownNameIsRemovedAndLoggedOnce()
{
    LogCapture log;
    QCOMPARE(expand(QStringLiteral("a var(Nobody) b var(Nobody) var(Else)"), 1),
             QStringLiteral("a  b  "));
    QCOMPARE(expand(QStringLiteral("[var(Nobody)]"), 1), QStringLiteral("[]"));
    const QStringList expected{QStringLiteral("QThemeCtrl::handleQssFile unknown name: Nobody"),
                               QStringLiteral("QThemeCtrl::handleQssFile unknown name: Else")};
    QCOMPARE(LogCapture::texts(QtWarningMsg), expected);
}

void tst_QThemeCtrlMacros::logHandlerMayChangeTheValueThatIsExpanded()
{
    QThemeCtrl::instance()->setValue(QThemeCtrl::Theme::System, QStringLiteral("Changing"),
                                     QStringLiteral("var(Missing) kept"));
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) {
            QThemeCtrl::instance()->setValue(QThemeCtrl::Theme::System, QStringLiteral("Changing"),
                                             QStringLiteral("new"));
        });
    const QString expanded = expand(QStringLiteral("[var(Changing)]"), 1);
    qInstallMessageHandler(previous);
    QCOMPARE(expanded, QStringLiteral("[ kept]"));
    QCOMPARE(expand(QStringLiteral("[var(Changing)]"), 1), QStringLiteral("[new]"));
}

void tst_QThemeCtrlMacros::nameThatRefersToItselfIsKeptAndLoggedOnce()
{
    QThemeCtrl *const theme = QThemeCtrl::instance();
    theme->setValue(QThemeCtrl::Theme::System, QStringLiteral("Loop"),
                    QStringLiteral("a var(Loop)"));
    theme->setValue(QThemeCtrl::Theme::System, QStringLiteral("Egg"), QStringLiteral("var(Hen)"));
    theme->setValue(QThemeCtrl::Theme::System, QStringLiteral("Hen"), QStringLiteral("var(Egg)"));
    LogCapture log;
    QCOMPARE(expand(QStringLiteral("var(Loop) var(Loop)"), 1),
             QStringLiteral("a var(Loop) a var(Loop)"));
    QCOMPARE(expand(QStringLiteral("var(Egg)"), 1), QStringLiteral("var(Egg)"));
    QCOMPARE(expand(QStringLiteral("var(Egg)"), 1), QStringLiteral("var(Egg)"));
    const QStringList expected{
        QStringLiteral("QThemeCtrl::handleQssFile name refers to itself: Loop"),
        QStringLiteral("QThemeCtrl::handleQssFile name refers to itself: Egg")};
    QCOMPARE(LogCapture::texts(QtWarningMsg), expected);
}

void tst_QThemeCtrlMacros::textThatIsNotANumberIsKeptAndLoggedOnce()
{
    LogCapture log;
    QCOMPARE(expand(QStringLiteral("sca(four) sca(four)"), 1),
             QStringLiteral("sca(four) sca(four)"));
    QCOMPARE(LogCapture::texts(QtWarningMsg),
             QStringList{QStringLiteral("QThemeCtrl::handleQssFile not a number: four")});
}

void tst_QThemeCtrlMacros::exponentiallyGrowingValueIsNotExpanded()
{
    // Every name macrosAreExpanded to ten times the one before, so the last would have 10^30
    // characters.
    QThemeCtrl *const theme = QThemeCtrl::instance();
    theme->setValue(QThemeCtrl::Theme::System, QStringLiteral("Ten0"), QStringLiteral("x"));
    for (int i = 1; i <= 30; ++i) {
        const QString one = QStringLiteral("var(Ten%1)").arg(i - 1);
        theme->setValue(QThemeCtrl::Theme::System, QStringLiteral("Ten%1").arg(i),
                        one.repeated(10));
    }
    LogCapture log;
    QCOMPARE(expand(QStringLiteral("var(Ten3)"), 1), QString(1000, QLatin1Char('x')));
    QCOMPARE(expand(QStringLiteral("var(Ten4)"), 1), QStringLiteral("var(Ten4)"));
    QVERIFY(expand(QStringLiteral("var(Ten30)"), 1).size() < 10000);
    QVERIFY(LogCapture::texts(QtWarningMsg)
                .contains(
                    QStringLiteral("QThemeCtrl::handleQssFile value too long or too deep: Ten4")));
}

void tst_QThemeCtrlMacros::longChainOfNamesIsNotExpanded()
{
    QThemeCtrl *const theme = QThemeCtrl::instance();
    theme->setValue(QThemeCtrl::Theme::System, QStringLiteral("Link0"), QStringLiteral("end"));
    for (int i = 1; i <= 100000; ++i) {
        theme->setValue(QThemeCtrl::Theme::System, QStringLiteral("Link%1").arg(i),
                        QStringLiteral("var(Link%1)").arg(i - 1));
    }
    LogCapture log;
    QCOMPARE(expand(QStringLiteral("var(Link63)"), 1), QStringLiteral("end"));
    QCOMPARE(expand(QStringLiteral("var(Link64)"), 1), QStringLiteral("var(Link0)"));
    QCOMPARE(expand(QStringLiteral("var(Link100000)"), 1), QStringLiteral("var(Link99936)"));
}

void tst_QThemeCtrlMacros::valueFollowsTheTheme()
{
    QThemeCtrl *const theme = QThemeCtrl::instance();
    theme->setValue(QThemeCtrl::Theme::Light, QStringLiteral("Time"), QStringLiteral("day"));
    theme->setValue(QThemeCtrl::Theme::Dark, QStringLiteral("Time"), QStringLiteral("night"));
    QCOMPARE(expand(QStringLiteral("var(Time)"), 1), QStringLiteral("day"));
    theme->setTheme(QThemeCtrl::Theme::Dark);
    QCOMPARE(expand(QStringLiteral("var(Time)"), 1), QStringLiteral("night"));
    theme->setTheme(QThemeCtrl::Theme::Light);
}

void tst_QThemeCtrlMacros::deepNestingIsExpanded_data()
{
    QTest::addColumn<QString>("opening");
    QTest::addColumn<QString>("core");
    QTest::addColumn<QString>("closing");
    QTest::addColumn<QString>("expected");
    const QString scale = QStringLiteral("sca(");
    const QString close = QStringLiteral(")");
    QTest::newRow("numbers") << scale << QStringLiteral("7") << close << QStringLiteral("7");
    QTest::newRow("names") << QStringLiteral("var(") << QStringLiteral("DeepDown") << close
                           << QString();
    QTest::newRow("notClosed") << scale << QStringLiteral("7") << QString()
                               << scale.repeated(100000) + QStringLiteral("7");
    QTest::newRow("notANumber") << scale << QStringLiteral("!") << close
                                << scale.repeated(100000) + QStringLiteral("!")
                                       + close.repeated(100000);
    QTest::newRow("blanksInside") << QStringLiteral("sca(      ") << QStringLiteral("7") << close
                                  << QStringLiteral("7");
    QTest::newRow("plain") << QStringLiteral("(") << QStringLiteral("sca(7)") << close
                           << QString(100000, QLatin1Char('(')) + QStringLiteral("7")
                                  + close.repeated(100000);
}

void tst_QThemeCtrlMacros::deepNestingIsExpanded()
{
    QFETCH(QString, opening);
    QFETCH(QString, core);
    QFETCH(QString, closing);
    QFETCH(QString, expected);
    LogCapture log;
    const QString sheet = opening.repeated(100000) + core + closing.repeated(100000);
    QVERIFY(expand(sheet, 1) == expected);
}

void tst_QThemeCtrlMacros::largeSheetIsExpanded_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("expectedPiece");
    QTest::newRow("numbers") << QStringLiteral("sca(3) ") << QStringLiteral("6 ");
    QTest::newRow("names") << QStringLiteral("var(Border);") << QStringLiteral("2px solid red;");
    QTest::newRow("parentheses") << QStringLiteral("()((") << QStringLiteral("()((");
    QTest::newRow("closedParentheses") << QStringLiteral("))))") << QStringLiteral("))))");
    QTest::newRow("openMacros") << QStringLiteral("var(sca(") << QStringLiteral("var(sca(");
    QTest::newRow("emptyMacros") << QStringLiteral("sca()") << QStringLiteral("sca()");
    QTest::newRow("quotes") << QStringLiteral("\"'sca(") << QStringLiteral("\"'sca(");
    QTest::newRow("comments") << QStringLiteral("/*/") << QStringLiteral("/*/");
    QTest::newRow("backslashes") << QStringLiteral("\\\\") << QStringLiteral("\\\\");
    QTest::newRow("binary") << QString(QChar(0)) + QChar(0xd800)
                            << QString(QChar(0)) + QChar(0xd800);
}

void tst_QThemeCtrlMacros::largeSheetIsExpanded()
{
    QFETCH(QString, piece);
    QFETCH(QString, expectedPiece);
    const auto pieces = static_cast<int>(5000000 / piece.size());
    QVERIFY(expand(piece.repeated(pieces), 2) == expectedPiece.repeated(pieces));
}

int main(int argc, char **argv)
{
    return runTest<tst_QThemeCtrlMacros>(argc, argv);
}

#include "tst_QThemeCtrlMacros.moc"
