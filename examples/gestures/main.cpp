// A board of dots whose mouse gestures are settings.
#include <MaltoConfiguration/MaltoConfiguration.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QStatusBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

/// Shows dots at any scale, and tells how many there are, the scale and the shift in `status`.
class Board : public QWidget
{
public:
    explicit Board(QStatusBar *status) : mStatus(status) { setDots({}); }

    void addDot(const QPointF &position)
    {
        setDots(mDots + QVector<QPointF>{(position - mShift) / mScale});
    }
    void clear() { setDots({}); }
    void moveBy(const QPointF &distance)
    {
        mShift += distance;
        setDots(mDots);
    }
    void zoom(int angle)
    {
        // Fine wheels and touchpads turn by less than a notch.
        mAngle += angle;
        const int notches = mAngle / QWheelEvent::DefaultDeltasPerStep;
        mAngle -= notches * QWheelEvent::DefaultDeltasPerStep;
        mScale = std::clamp(mScale * std::pow(1.25, notches), 0.1, 10.0);
        setDots(mDots);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), palette().base());
        painter.translate(mShift);
        painter.scale(mScale, mScale);
        painter.setBrush(palette().highlight());
        for (const QPointF &dot : std::as_const(mDots))
            painter.drawEllipse(dot, 8, 8);
    }

private:
    void setDots(const QVector<QPointF> &dots)
    {
        mDots = dots;
        mStatus->showMessage(QStringLiteral("%1 dots, %2 %, shifted by %3 and %4")
                                 .arg(mDots.size())
                                 .arg(qRound(100 * mScale))
                                 .arg(qRound(mShift.x()))
                                 .arg(qRound(mShift.y())));
        update();
    }

    QStatusBar *const mStatus;
    QVector<QPointF> mDots;
    QPointF mShift;
    qreal mScale = 1;
    int mAngle = 0; // of the wheel since the last notch
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    int add = int(Qt::ShiftModifier) | MtConf::LeftClickGesture;
    int clear = MtConf::RightDoubleClickGesture;
    int move = MtConf::LeftDragGesture;
    int zoom = int(Qt::ControlModifier) | MtConf::WheelGesture;

    MtConf::MtConfManage settings;
    settings.addConfMouseAction("Add a dot", &add, 1, "Mouse", "Add");
    settings.addConfMouseAction("Remove all dots", &clear, 1, "Mouse", "Clear");
    settings.addConfMouseAction("Move the board", &move, 2, "Mouse", "Move");
    settings.addConfMouseAction("Zoom", &zoom, 0, "Mouse", "Zoom");

    QMainWindow window;
    auto *board = new Board(window.statusBar());
    window.setCentralWidget(board);
    window.menuBar()->addAction(QStringLiteral("Settings…"), &settings,
                                [&settings] { settings.ShowWindow(); });

    MtConf::GestureRecognizer gestures;
    for (const char *name : {"Add", "Clear", "Move", "Zoom"})
        gestures.addItem(settings.getItemByName("Mouse", name, QString()));
    gestures.watch(board);

    QPointF last; // of a drag, on the screen
    QObject::connect(&gestures, &MtConf::GestureRecognizer::triggered, board,
                     [&](const QString &key, const MtConf::MouseGesture &gesture) {
                         if (key == "Mouse.Add")
                             board->addDot(gesture.position);
                         else if (key == "Mouse.Clear")
                             board->clear();
                         else if (key == "Mouse.Zoom")
                             board->zoom(gesture.angleDelta.y());
                         else if (key == "Mouse.Move")
                             last = gesture.globalBegin;
                     });
    QObject::connect(&gestures, &MtConf::GestureRecognizer::dragMoved, board,
                     [&](const MtConf::MouseGesture &gesture) {
                         if (gesture.value != move)
                             return; // a drag that no setting has
                         board->moveBy(gesture.globalPosition - last);
                         last = gesture.globalPosition;
                     });
    window.resize(600, 400);
    window.show();
    return app.exec();
}
