// What a screen looks like, against a kept picture. RENEW_PICTURES=1 keeps what is shown now.
#pragma once

#include <QImage>

// Compares with NAME.png of the one directory; where they differ too much the test fails, and both the
// picture and the difference are left in the other directory.
void expectAsKept(const QImage &shown, const QString &name, const QString &kept, const QString &differences);
