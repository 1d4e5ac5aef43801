#pragma once

#include "support/CleanStore.h"

#include <MaltoConfiguration/inputs/GestureRecognizer.h>

#include <QGuiApplication>
#include <QStyleHints>
#include <QTimer>
#include <QtTest>

#include <utility>

/// A mouse that feeds a recognizer. A script consists of words:
/// "L+", "R+", "M+", "B+" press the left, right, middle and back button, "L-" and so on release it;
/// "x30" moves the pointer to that distance from its place at the begin; "w120" turns the wheel;
/// "shift", "ctrl" and "pad" press or release a modifier; "t200" lets 200 ms pass; "timeout" ends
/// the time of a double click; any other word is the name of an event without data.
class Mouse
{
public:
    explicit Mouse(MtConf::GestureRecognizer *recognizer) : mRecognizer(recognizer) {}

    void play(const QString &script)
    {
        const QStringList words = script.split(QLatin1Char(' '));
        for (const QString &word : words)
            play(word, word.mid(1).toInt());
    }

    QStringList accepted; ///< the words for which `feed` returned true

private:
    void play(const QString &word, int number)
    {
        static const QHash<QString, Qt::KeyboardModifier> sModifiers{
            {QStringLiteral("shift"), Qt::ShiftModifier},
            {QStringLiteral("ctrl"), Qt::ControlModifier},
            {QStringLiteral("pad"), Qt::KeypadModifier}};
        static const QHash<QString, QEvent::Type> sEvents{
            {QStringLiteral("focusOut"), QEvent::FocusOut},
            {QStringLiteral("deactivate"), QEvent::WindowDeactivate},
            {QStringLiteral("ungrab"), QEvent::UngrabMouse},
            {QStringLiteral("leave"), QEvent::Leave},
            {QStringLiteral("hide"), QEvent::Hide},
            {QStringLiteral("disable"), QEvent::EnabledChange},
            {QStringLiteral("paint"), QEvent::Paint}};
        static const QHash<QChar, Qt::MouseButton> sButtons{{QLatin1Char('L'), Qt::LeftButton},
                                                            {QLatin1Char('R'), Qt::RightButton},
                                                            {QLatin1Char('M'), Qt::MiddleButton},
                                                            {QLatin1Char('B'), Qt::BackButton}};
        if (sModifiers.contains(word)) {
            mModifiers ^= sModifiers.value(word);
        } else if (sEvents.contains(word)) {
            QEvent event(sEvents.value(word));
            feed(word, &event);
        } else if (word == QLatin1String("timeout")) {
            auto *timer = mRecognizer->findChild<QTimer *>();
            QVERIFY(timer->isActive());
            timer->stop();
            QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
        } else if (word.at(0) == QLatin1Char('t')) {
            mTime += static_cast<ulong>(number);
        } else if (word.at(0) == QLatin1Char('x')) {
            mX = number;
            send(word, QEvent::MouseMove, Qt::NoButton);
        } else if (word.at(0) == QLatin1Char('w')) {
            QWheelEvent event({mX, 0}, {100 + mX, 0}, {}, {0, number}, mButtons, mModifiers,
                              Qt::NoScrollPhase, false);
            event.setTimestamp(mTime);
            feed(word, &event);
        } else {
            const Qt::MouseButton button = sButtons.value(word.at(0));
            const bool isPress = word.endsWith(QLatin1Char('+'));
            mButtons = isPress ? mButtons | button : mButtons & ~Qt::MouseButtons(button);
            send(word, isPress ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, button);
        }
    }

    void send(const QString &word, QEvent::Type type, Qt::MouseButton button)
    {
        QMouseEvent event(type, {mX, 0}, {mX, 0}, {100 + mX, 0}, button, mButtons, mModifiers);
        event.setTimestamp(mTime);
        feed(word, &event);
    }

    void feed(const QString &word, QEvent *event)
    {
        if (mRecognizer && mRecognizer->feed(event))
            accepted.append(word);
    }

    QPointer<MtConf::GestureRecognizer> mRecognizer;
    Qt::MouseButtons mButtons;
    Qt::KeyboardModifiers mModifiers;
    qreal mX = 0;
    ulong mTime = 1000;
};

/// The signals of a recognizer as words: the value of a gesture in hexadecimal digits, the key of a
/// setting, and "moved", "finished" and "cancelled".
class Log
{
public:
    explicit Log(MtConf::GestureRecognizer *recognizer)
    {
        using R = MtConf::GestureRecognizer;
        const auto add = [this](const QString &word) { mWords.append(word); };
        QObject::connect(recognizer, &R::recognized, &mContext,
                         [add](const MtConf::MouseGesture &gesture) {
                             add(QString::number(gesture.value, 16));
                         });
        QObject::connect(recognizer, &R::triggered, &mContext, add);
        QObject::connect(recognizer, &R::dragMoved, &mContext,
                         [add] { add(QStringLiteral("moved")); });
        QObject::connect(recognizer, &R::dragFinished, &mContext,
                         [add] { add(QStringLiteral("finished")); });
        QObject::connect(recognizer, &R::dragCancelled, &mContext,
                         [add] { add(QStringLiteral("cancelled")); });
    }

    QString take() { return std::exchange(mWords, {}).join(QLatin1Char(' ')); }

private:
    QObject mContext;
    QStringList mWords;
};

/// Two gesture settings and one text in a clean store. The time of a double click does not end by
/// itself.
class GestureFixture
{
public:
    GestureFixture()
    {
        setDoubleClickInterval(3600 * 1000);
        QGuiApplication::styleHints()->setStartDragDistance(10);
        clearStore();
        ConfStorage::instance()->reserveConf(QStringLiteral("first"), &first);
        ConfStorage::instance()->reserveConf(QStringLiteral("second"), &second);
        ConfStorage::instance()->reserveConf(QStringLiteral("text"), &text);
    }
    ~GestureFixture() { clearStore(); }
    Q_DISABLE_COPY(GestureFixture)

    static void setDoubleClickInterval(int milliseconds)
    {
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(milliseconds);
    }

    int first = 0;
    int second = 0;
    QString text;
};
