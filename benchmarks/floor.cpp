// The floor of a start: a bare window of the main screen's size, whose list shows the names in a file.
// bench_floor NAMES BEGUN

#include "benchmarks/clock.h"

#include <QApplication>
#include <QFile>
#include <QListWidget>
#include <QTimer>

#include <cstdlib>

namespace {

class Window final : public QListWidget {
public:
    double begun = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QListWidget::paintEvent(event);
        // Behind the flush of what was painted.
        QTimer::singleShot(0, this, [this] {
            printStart(begun);
            QApplication::quit();
        });
    }
};

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    QApplication application(argc, argv);
    QFile names(QString::fromLocal8Bit(argv[1]));
    if (!names.open(QIODevice::ReadOnly))
        return 1;
    Window window;
    window.begun = std::atof(argv[2]);
    window.setUniformItemSizes(true);
    window.setFixedSize(411, 381);
    window.addItems(QString::fromUtf8(names.readAll()).split(u'\n', Qt::SkipEmptyParts));
    window.show();
    return QApplication::exec();
}
