// Which pictures could be loaded before.
#pragma once

#include "host/filestate.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace host {
class LengthsIn;
}

namespace forms {

// Thousands of pictures need not be decoded again only to tell that they can be, while their files stay as
// they were; nor all of them before anything shows.
class KnownPictures {
public:
    KnownPictures();

    // Fails as LoadPicture does with one of these paths, which all begin as the directory does, if any of
    // them can't be loaded. What doesn't fit into a frame is decoded while the program is idle, and not even
    // looked at before where the directory's listing has it as a file; cantLoad is called once if one of
    // those can't be loaded, unless another check began before.
    void Check(const QString &directory, const QStringList &paths, std::function<void()> cantLoad);

private:
    struct Picture {
        QString path;
        std::optional<host::FileState> state; // none: it isn't known again
    };

    static std::vector<Picture> lookAt(const host::LengthsIn &directory, const QStringList &paths);
    std::vector<Picture> lookAtSome(const host::LengthsIn &directory);
    bool isKnown(const Picture &picture) const;
    bool isLoadable(const Picture &picture);
    bool areSomeLoadable();
    void checkMore();

    QHash<host::FileState, bool> m_loadable;
    QString m_directory;
    QStringList m_unseen; // listed there
    std::vector<Picture> m_putOff; // in no order
    QTimer m_idle;
    std::function<void()> m_cantLoad;
};

} // namespace forms
