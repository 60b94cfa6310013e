// The desktop's program for web pages and mail: it keeps what it was asked to open.
#pragma once

#include <QObject>
#include <QStringList>
#include <QUrl>

class Browser : public QObject {
    Q_OBJECT
public:
    Browser();
    ~Browser() override;

    Q_INVOKABLE void open(const QUrl &url);

    QStringList opened;
};
