// The file browser: volumes, directories, program files, and what it answers.

#include "tests/support/input.h"
#include "tests/support/programdirectory.h"
#include "tests/support/screentest.h"

#include "core/modulo.h"

#include "dialogs/examinar.h"

#include "host/paths.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Notice {
    QString text;
    QString title;
    QStringList buttons;
};

class ExaminarTest : public ScreenTest {
protected:
    ExaminarTest()
        : holder([this] { return make(); })
    {
        files.write(u"games/emu.EXE"_s, "x");
        files.write(u"games/b.bat"_s, "x");
        files.write(u"games/readme.txt"_s, "x");
        files.write(u"games/runner"_s, "x");
        files.write(u"games/sub/inner.com"_s, "x");
        EXPECT_TRUE(QFile::setPermissions(files.path(u"games/runner"_s),
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther));
        M.RutaExaminar = u"old path"_s;
        M.ArchivoExaminar = u"old file"_s;
        M.TXT_Examinar = u"Browse"_s;
        M.TXT_Aceptar = u"OK"_s;
        M.Msg_NoDiscoX0 = u"No drive"_s;
        M.Msg_NoDiscoI1 = u"The drive"_s;
        M.Msg_NoDiscoD1 = u"isn't there."_s;
    }

    // Opens it at a directory, as its callers do, and drives it.
    void browse(const QString &start, const std::function<void(forms::Form &)> &act)
    {
        holder->Directorios->SetPath(start);
        holder->PonTextos(u"Back"_s);
        atModal(u"Examinar"_s, act);
        holder.ShowModal(nullptr);
    }

    static forms::DirectoryList &tree(const forms::Form &form)
    {
        return controlOf<forms::DirectoryList>(form, u"Directorios"_s);
    }
    static forms::ListBox &programs(const forms::Form &form)
    {
        return controlOf<forms::ListBox>(form, u"Archivos"_s);
    }
    static forms::ComboBox &drives(const forms::Form &form)
    {
        return controlOf<forms::ComboBox>(form, u"Discos"_s);
    }
    static QStringList entriesOf(const forms::ListBox &list)
    {
        QStringList entries;
        for (int i = 0; i < list.ListCount(); ++i)
            entries += list.List(i);
        return entries;
    }
    static void press(const forms::Form &form, const QString &button)
    {
        click(controlOf<QWidget>(form, button));
    }
    static int rowOf(const forms::ListBox &list, const QString &text)
    {
        return static_cast<int>(entriesOf(list).lastIndexOf(text));
    }
    QString games() const { return files.path(u"games"_s); }

    ProgramDirectory files;
    core::Modulo M;
    std::vector<Notice> notices;
    forms::FormHolder<dialogs::Examinar> holder;

private:
    std::unique_ptr<dialogs::Examinar> make()
    {
        return std::make_unique<dialogs::Examinar>(M, dialogs::Teja {},
            [this](const QString &text, const QString &title, const QString &first, const QString &second) {
                notices.push_back({ text, title, { first, second } });
            });
    }
};

} // namespace

TEST_F(ExaminarTest, ControlsStandInTheirPlaces)
{
    const struct {
        QString name;
        QRect place;
    } controls[] = {
        { u"Discos"_s, designPlace(120, 120, 1815, 315) },
        { u"Directorios"_s, designPlace(120, 600, 1815, 1890) },
        { u"Archivos"_s, designPlace(2040, 120, 1815, 3015) },
        { u"Aceptar2"_s, designPlace(180, 2620, 465, 405) },
        { u"Flecha2"_s, designPlace(790, 2640, 615, 375) },
        { u"TXT_Aceptar"_s, designPlace(90, 3080, 585, 210) },
        { u"TXT_Volver"_s, designPlace(800, 3075, 720, 210) },
    };
    for (const auto &expected : controls)
        EXPECT_EQ(controlOf<QWidget>(*holder, expected.name).geometry(), expected.place)
            << expected.name.toStdString();
    EXPECT_EQ(holder->size(), QSize(265, 222));
    EXPECT_EQ(holder->Caption(), u"Examinar..."_s);
    EXPECT_TRUE(holder->windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(holder->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    for (const auto &[name, caption] :
        { std::pair(u"TXT_Aceptar"_s, u"Aceptar"_s), std::pair(u"TXT_Volver"_s, u"Volver"_s) }) {
        const auto &label = controlOf<forms::Label>(*holder, name);
        EXPECT_EQ(label.Caption(), caption);
        EXPECT_EQ(label.ForeColor(), QColor(192, 255, 192));
        EXPECT_EQ(label.alignment(), Qt::AlignHCenter | Qt::AlignTop);
        EXPECT_FALSE(label.font().bold());
    }
}

TEST_F(ExaminarTest, ItLoadsOnTheProgramsOwnDirectory)
{
    M.Respuesta_Opcion = 1;
    EXPECT_EQ(holder->Directorios->Path(), host::directoryPath(files.path()));
    EXPECT_EQ(M.Respuesta_Opcion, 0);
    EXPECT_EQ(M.RutaExaminar, u"old path"_s);
}

TEST_F(ExaminarTest, AStartThatIsntThereLeavesItWhereTheLoadPutIt)
{
    EXPECT_THROW(holder->Directorios->SetPath(u"/nowhere/at all"_s), host::Failure);
    EXPECT_EQ(holder->Directorios->Path(), host::directoryPath(files.path()));
}

TEST_F(ExaminarTest, TheWordsAreTheLanguagesAndTheCallers)
{
    browse(games(), [](forms::Form &form) {
        EXPECT_EQ(form.Caption(), u"Browse"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Aceptar"_s).Caption(), u"OK"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Volver"_s).Caption(), u"Back"_s);
        EXPECT_EQ(drives(form).accessibleName(), u"Unidades"_s);
        const std::pair<QString, QString> names[] = { { u"Directorios"_s, u"Directorios"_s },
            { u"Archivos"_s, u"Archivos"_s }, { u"Aceptar2"_s, u"OK"_s }, { u"Flecha2"_s, u"Back"_s } };
        for (const auto &[control, name] : names)
            EXPECT_EQ(QAccessible::queryAccessibleInterface(&controlOf<QWidget>(form, control))
                          ->text(QAccessible::Name),
                name);
        press(form, u"Flecha2"_s);
    });
}

TEST_F(ExaminarTest, ProgramFilesAloneAreListed)
{
    browse(games(), [](forms::Form &form) {
        EXPECT_THAT(entriesOf(programs(form)), ElementsAre(u"b.bat"_s, u"emu.EXE"_s, u"runner"_s));
        EXPECT_EQ(programs(form).ListIndex(), -1);
        press(form, u"Flecha2"_s);
    });
}

TEST_F(ExaminarTest, ADoubleClickOnADirectoryMovesTheFiles_ASingleOneDoesNot)
{
    browse(games(), [this](forms::Form &form) {
        clickRow(tree(form), rowOf(tree(form), u"sub"_s));
        EXPECT_THAT(entriesOf(programs(form)), ElementsAre(u"b.bat"_s, u"emu.EXE"_s, u"runner"_s));
        EXPECT_EQ(tree(form).Path(), games());
        doubleClickRow(tree(form), rowOf(tree(form), u"sub"_s));
        EXPECT_THAT(entriesOf(programs(form)), ElementsAre(u"inner.com"_s));
        clickRow(tree(form), rowOf(tree(form), u"games"_s)); // marked, not open
        press(form, u"Aceptar2"_s);
    });
    EXPECT_EQ(M.RutaExaminar, games() + u"/sub"_s);
}

TEST_F(ExaminarTest, ANameThatIsWiderThanItsListIsReachedByABar)
{
    const QString wide = u'c' + QString(60, u'w'); // neither first nor last
    files.write(u"games/"_s + wide + u".exe"_s, "x");
    files.makeDirectory(u"games/"_s + wide);
    browse(games(), [this](forms::Form &form) {
        for (forms::ListBox *list : { &programs(form), static_cast<forms::ListBox *>(&tree(form)) }) {
            EXPECT_TRUE(waitUntil([list] { return list->horizontalScrollBar()->isVisible(); }))
                << list->objectName().toStdString();
            EXPECT_GT(list->horizontalScrollBar()->maximum(), 200);
        }
        doubleClickRow(tree(form), rowOf(tree(form), u"sub"_s));
        EXPECT_TRUE(waitUntil([&form] { return !programs(form).horizontalScrollBar()->isVisible(); }));
        press(form, u"Flecha2"_s);
    });
}

TEST_F(ExaminarTest, AcceptAnswersTheOpenDirectoryAndTheMarkedFile)
{
    browse(games(), [](forms::Form &form) {
        clickRow(programs(form), rowOf(programs(form), u"emu.EXE"_s));
        ::press(controlOf<QWidget>(form, u"Aceptar2"_s));
        EXPECT_TRUE(form.isVisible());
        release(controlOf<QWidget>(form, u"Aceptar2"_s));
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(M.RutaExaminar, games());
    EXPECT_EQ(M.ArchivoExaminar, u"emu.EXE"_s);
    EXPECT_EQ(M.Respuesta_Opcion, 0);
    EXPECT_FALSE(holder.isLoaded());
}

TEST_F(ExaminarTest, AcceptWithoutAMarkedFileAnswersNone)
{
    browse(u"/"_s, [](forms::Form &form) { press(form, u"Aceptar2"_s); });
    EXPECT_EQ(M.RutaExaminar, u"/"_s);
    EXPECT_EQ(M.ArchivoExaminar, QString());
}

TEST_F(ExaminarTest, ADoubleClickOnAFileDoesNothing)
{
    browse(games(), [](forms::Form &form) {
        doubleClickRow(programs(form), 0);
        EXPECT_TRUE(form.isVisible());
        press(form, u"Flecha2"_s);
    });
    EXPECT_EQ(M.ArchivoExaminar, u"old file"_s);
}

TEST_F(ExaminarTest, BackKeepsTheOldAnswersAndSaysSo)
{
    browse(games(), [](forms::Form &form) {
        clickRow(programs(form), 0);
        press(form, u"Flecha2"_s);
    });
    EXPECT_EQ(M.RutaExaminar, u"old path"_s);
    EXPECT_EQ(M.ArchivoExaminar, u"old file"_s);
    EXPECT_EQ(M.Respuesta_Opcion, 1);
}

TEST_F(ExaminarTest, TheBoxForClosingIsNoGoingBack)
{
    browse(games(), [](forms::Form &form) {
        clickRow(programs(form), 0);
        wishClose(form);
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(M.RutaExaminar, u"old path"_s);
    EXPECT_EQ(M.ArchivoExaminar, u"old file"_s);
    EXPECT_EQ(M.Respuesta_Opcion, 0);
}

TEST_F(ExaminarTest, EachUseBeginsFromItsDesign)
{
    browse(games(), [](forms::Form &form) {
        form.SetOuterWidth(2160);
        programs(form).hide();
        press(form, u"Aceptar2"_s);
    });
    EXPECT_EQ(holder->Directorios->Path(), host::directoryPath(files.path()));
    EXPECT_FALSE(holder->Archivos->isHidden());
    EXPECT_EQ(holder->width(), 265);
}

TEST_F(ExaminarTest, TheVolumesOpenOnTheOneOfTheWorkingDirectory_AndStayThere)
{
    host::changeDirectory(u"/"_s);
    browse(games(), [](forms::Form &form) {
        EXPECT_EQ(drives(form).List(0), u"/"_s);
        EXPECT_EQ(drives(form).List(1), QDir::homePath());
        EXPECT_EQ(drives(form).Text(), u"/"_s);
        press(form, u"Flecha2"_s);
    });
    host::changeDirectory(QDir::homePath());
    EXPECT_EQ(holder->Discos->Text(), QDir::homePath());
}

TEST_F(ExaminarTest, AVolumePickedIsOpened)
{
    browse(games(), [](forms::Form &form) {
        pick(drives(form), QDir::homePath());
        EXPECT_EQ(tree(form).Path(), QDir::homePath());
        pick(drives(form), u"/"_s);
        EXPECT_EQ(tree(form).Path(), u"/"_s);
        press(form, u"Flecha2"_s);
    });
    EXPECT_THAT(notices, IsEmpty());
}

TEST_F(ExaminarTest, TheDrivesAreVolumesToo)
{
    files.write(u"Zembro.uni"_s, "C=" + games().toUtf8() + "\r\nD=" + games().toUtf8() + "/none\r\n");
    browse(games(), [this](forms::Form &form) {
        pick(drives(form), u"/"_s);
        pick(drives(form), u"C:"_s);
        EXPECT_EQ(tree(form).Path(), games());
        EXPECT_EQ(programs(form).ListCount(), 3);
        pick(drives(form), u"D:"_s);
        EXPECT_EQ(tree(form).Path(), games());
        press(form, u"Aceptar2"_s);
    });
    ASSERT_EQ(notices.size(), 1u);
    EXPECT_EQ(notices[0].text, u"The drive D: isn't there."_s);
    EXPECT_EQ(M.RutaExaminar, u"C:\\"_s) << "as it was entered";
}

TEST_F(ExaminarTest, WhatWasEnteredByADriveIsAnsweredInItsSpelling)
{
    const QString above = games().first(games().lastIndexOf(u'/'));
    const QString name = games().sliced(above.size() + 1);
    files.write(u"Zembro.uni"_s, "C=" + above.toUtf8() + "\r\n");
    browse(games(), [this](forms::Form &form) {
        pick(drives(form), u"C:"_s);
        tree(form).SetPath(u"C:\\"_s + games().sliced(games().lastIndexOf(u'/') + 1));
        press(form, u"Aceptar2"_s);
    });
    EXPECT_EQ(M.RutaExaminar, u"C:\\"_s + name);
    browse(games(), [this](forms::Form &form) {
        pick(drives(form), u"C:"_s);
        pick(drives(form), u"/"_s);
        press(form, u"Aceptar2"_s);
    });
    EXPECT_EQ(M.RutaExaminar, u"/"_s);
}

TEST_F(ExaminarTest, AVolumeThatIsntReadyGivesTheNotice_AndTheOldDirectoryIsStillTheAnswer)
{
    browse(games(), [this](forms::Form &form) {
        files.makeDirectory(u"cdrom0"_s); // its place is there, nothing is mounted
        drives(form).AddItem(files.path(u"cdrom0"_s));
        pick(drives(form), files.path(u"cdrom0"_s));
        EXPECT_EQ(drives(form).Text(), files.path(u"cdrom0"_s));
        EXPECT_EQ(tree(form).Path(), games());
        EXPECT_EQ(programs(form).ListCount(), 3);
        press(form, u"Aceptar2"_s);
    });
    ASSERT_EQ(notices.size(), 1u);
    EXPECT_EQ(notices[0].title, u"No drive"_s);
    EXPECT_EQ(notices[0].text, u"The drive "_s + files.path(u"cdrom0"_s).toUpper() + u" isn't there."_s);
    EXPECT_THAT(notices[0].buttons, ElementsAre(u"OK"_s, u"Back"_s));
    EXPECT_EQ(M.RutaExaminar, games());
}

TEST_F(ExaminarTest, BehindTheNoticeAnotherVolumeIsPickedAtOnce_TheOneOfTheStartToo)
{
    host::changeDirectory(u"/"_s);
    browse(games(), [this](forms::Form &form) {
        drives(form).AddItem(u"/mnt/nowhere"_s);
        pick(drives(form), u"/mnt/nowhere"_s);
        ASSERT_EQ(notices.size(), 1u);
        pick(drives(form), u"/"_s);
        EXPECT_EQ(tree(form).Path(), u"/"_s);
        press(form, u"Aceptar2"_s);
    });
    EXPECT_EQ(notices.size(), 1u);
    EXPECT_EQ(M.RutaExaminar, u"/"_s);
}

TEST_F(ExaminarTest, ItIsDrivenByKeysThroughout)
{
    browse(games(), [](forms::Form &form) {
        EXPECT_EQ(form.focusWidget(), &tree(form));
        strike(form, Qt::Key_Down);
        strike(form, Qt::Key_Return);
        strike(form, Qt::Key_Escape);
        strike(form, Qt::Key_Tab);
        EXPECT_EQ(form.focusWidget(), &programs(form));
        strike(form, Qt::Key_Down);
        EXPECT_EQ(programs(form).Text(), u"inner.com"_s);
        strike(form, Qt::Key_Return);
        strike(form, Qt::Key_Tab);
        strike(form, Qt::Key_Space);
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(M.RutaExaminar, games() + u"/sub"_s);
    EXPECT_EQ(M.ArchivoExaminar, u"inner.com"_s);
}
