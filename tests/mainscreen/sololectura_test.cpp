// A program directory that can't be written to, as on a CD or of another user: the program works, tells what
// it can't keep, and never ends of that.

#include "accionestest.h"

#include "tests/support/ordinaryuser.h"

#include "host/process.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QStringList NotKept { u"Sin grabar"_s, u"No se puede escribir en el directorio del programa."_s };
const QStringList NotRemembered { u"Sin grabar"_s,
    u"No se puede escribir aquí: la selección no se recuerda."_s };

class SoloLecturaTest : public AccionesTest {
protected:
    ~SoloLecturaTest() override { host::rememberEnvironment(); }

    // Answers the next box for a text, and takes the warning behind it.
    QStringList answeredAndTold(const QString &text, const std::function<void()> &action)
    {
        QStringList told;
        atModal(u"Caja"_s, [text](forms::Form &form) {
            controlOf<forms::TextBox>(form, u"Casilla"_s).SetText(text);
            click(controlOf<QWidget>(form, u"Aceptar2"_s));
        });
        takeWarning(told);
        action();
        return told;
    }
    void takeWarning(QStringList &told)
    {
        atModal(u"Caja"_s, [&told](forms::Form &form) {
            told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
            click(controlOf<QWidget>(form, u"Flecha2"_s));
        });
    }
    void leave()
    {
        const std::optional<ProcessEnd> end = endOf([this] { click(control(u"Flecha2"_s)); });
        ASSERT_TRUE(end) << "the program goes on";
        EXPECT_EQ(end->status, 0);
        EXPECT_EQ(end->title, QString()) << end->text.toStdString();
        EXPECT_FALSE(portada->isVisible());
    }
    QByteArray settings() const { return files.read(u"Zembro.cfg"_s); }
};

} // namespace

TEST_F(SoloLecturaTest, ADescriptionThatCannotBeKeptIsTold_AndTheListStays)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    clickRow(list(), 1);
    {
        const AsOrdinaryUser user(files.path());
        for (int time = 0; time < 2; ++time)
            EXPECT_EQ(answeredAndTold(u"Otro"_s, [this] { describe(); }), NotKept);
    }
    EXPECT_EQ(notes(), before);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    EXPECT_EQ(list().Text(), u"two.nes"_s);
    // Where it can be written again, it is.
    answer(
        u"Otro"_s, [this] { describe(); }, u"two.nes"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"Otro"_s));
}

TEST_F(SoloLecturaTest, ParametersThatCannotBeKeptAreTold)
{
    startAt(Zeta, 0);
    addWords();
    const QByteArray before = notes();
    clickRow(list(), 0);
    {
        const AsOrdinaryUser user(files.path());
        EXPECT_EQ(answeredAndTold(u"-full"_s, [this] { parametersMenu(); }), NotKept);
    }
    EXPECT_EQ(notes(), before);
}

TEST_F(SoloLecturaTest, ASizeThatCannotBeKeptIsTold)
{
    const QByteArray ofTheTests = qgetenv("QT_SCALE_FACTOR");
    qputenv("QT_SCALE_FACTOR", {});
    host::rememberEnvironment();
    qputenv("QT_SCALE_FACTOR", ofTheTests);
    startAt(Zeta, 0);
    QStringList told;
    takeWarning(told);
    {
        const AsOrdinaryUser user(files.path());
        strike(*portada, Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_EQ(told, NotKept);
    EXPECT_FALSE(files.exists(u"Zembro.tam"_s));
}

TEST_F(SoloLecturaTest, ASelectionThatIsNotRememberedIsToldAtTheExit_WhichIsARegularOne)
{
    startAt(Zeta, 0);
    const QByteArray before = settings();
    pick(systems(), u"Medio"_s);
    QStringList told;
    takeWarning(told);
    {
        const AsOrdinaryUser user(files.path());
        leave();
    }
    EXPECT_EQ(told, NotRemembered);
    EXPECT_EQ(settings(), before);
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

TEST_F(SoloLecturaTest, TheSameSelectionAsBeforeIsNothingToTell)
{
    startAt(Zeta, 0);
    const QByteArray before = settings();
    {
        const AsOrdinaryUser user(files.path());
        leave(); // a box would be unexpected
    }
    EXPECT_EQ(settings(), before);
}

TEST_F(SoloLecturaTest, AUserWhoKnowsIsNotToldAgainAtTheExit)
{
    startAt(Zeta, 0);
    addWords();
    clickRow(list(), 1);
    {
        const AsOrdinaryUser user(files.path());
        EXPECT_EQ(answeredAndTold(u"Otro"_s, [this] { describe(); }), NotKept);
        pick(systems(), u"Medio"_s);
        leave();
    }
}
