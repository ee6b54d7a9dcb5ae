#include "lessons/units/FormUnidadesCuestiones.h"

#include "lessons/units/EntradaEntera.h"
#include "shell/Aspecto.h"
#include "shell/Evento.h"
#include "shell/Imagenes.h"
#include "shell/ModGlobal.h"
#include "shell/Textos.h"
#include "shell/Veredicto.h"
#include "ui_FormUnidadesCuestiones.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Tipo = CuestionUnidades::Tipo;

const QList<Tipo> TiposDelGrupo{Tipo::Inverso, Tipo::Orden, Tipo::RaizPrimitiva};
const QList<Tipo> TiposDeEuler{Tipo::Fi, Tipo::Potencia};

constexpr std::int32_t MayorRespuesta = 1'000'000'000;

} // namespace

FormUnidadesCuestiones::FormUnidadesCuestiones(QWidget *leccion)
    : QWidget(leccion), ui(std::make_unique<Ui::FormUnidadesCuestiones>())
{
    ui->setupUi(this);
    traduceVentana(this);
    m_mitades[0] =
        std::make_unique<Mitad>(Mitad{TiposDelGrupo, CuestionUnidades::alAzar(TiposDelGrupo),
                                      ui->lblEnunciado_0, ui->txtRespuesta_0, ui->cmdComprobar_0,
                                      ui->cmdOtra_0, ui->lblVeredicto_0, ui->ccrpAnimation_0});
    m_mitades[1] =
        std::make_unique<Mitad>(Mitad{TiposDeEuler, CuestionUnidades::alAzar(TiposDeEuler),
                                      ui->lblEnunciado_1, ui->txtRespuesta_1, ui->cmdComprobar_1,
                                      ui->cmdOtra_1, ui->lblVeredicto_1, ui->ccrpAnimation_1});
    for (const auto &mitad : m_mitades)
        prepara(*mitad);
}

FormUnidadesCuestiones::~FormUnidadesCuestiones() = default;

void FormUnidadesCuestiones::prepara(Mitad &mitad)
{
    mitad.cmdComprobar->setIcon(Icono(u"COMPROBAR"_s));
    mitad.cmdOtra->setIcon(Icono(u"DADO"_s));
    Aspecto::destaca(mitad.lblEnunciado, 1.1);
    Aspecto::destaca(mitad.lblVeredicto, 1.1);
    mitad.lblEnunciado->setText(mitad.cuestion.enunciado());
    mitad.ccrpAnimation->carga({}, u"EUREKA0"_s);
    conecta(mitad.cmdComprobar, &QPushButton::clicked, this, [&] { cmdComprobar_Click(mitad); });
    conecta(mitad.cmdOtra, &QPushButton::clicked, this, [&] { cmdOtra_Click(mitad); });
    conecta(mitad.txtRespuesta, &QLineEdit::textChanged, this, [&] { txtRespuesta_Change(mitad); });
    conecta(mitad.txtRespuesta, &QLineEdit::returnPressed, this,
            [&] { mitad.cmdComprobar->animateClick(); });
}

void FormUnidadesCuestiones::cmdComprobar_Click(Mitad &mitad)
{
    const auto respuesta = evaluaPequeno(mitad.txtRespuesta->text(), MayorRespuesta);
    if (respuesta) {
        ponVeredicto(mitad, mitad.cuestion.juzga(*respuesta));
        return;
    }
    mitad.lblVeredicto->setPalette({});
    mitad.lblVeredicto->setText(Traduce(u"La respuesta es un número entero."_s));
    mitad.txtRespuesta->setFocus();
}

void FormUnidadesCuestiones::cmdOtra_Click(Mitad &mitad)
{
    mitad.cuestion = CuestionUnidades::alAzar(mitad.tipos);
    mitad.lblEnunciado->setText(mitad.cuestion.enunciado());
    mitad.txtRespuesta->clear();
    mitad.lblVeredicto->clear();
    mitad.ccrpAnimation->carga({}, u"EUREKA0"_s);
    mitad.txtRespuesta->setFocus();
}

/// A verdict belongs to the answer that was judged.
void FormUnidadesCuestiones::txtRespuesta_Change(Mitad &mitad)
{
    mitad.lblVeredicto->clear();
}

void FormUnidadesCuestiones::ponVeredicto(Mitad &mitad, const CuestionUnidades::Juicio &juicio)
{
    const QString veredicto = Traduce(juicio.acierto ? u"¡Correcto!"_s : u"No es correcto."_s);
    muestraVeredicto(mitad.lblVeredicto, juicio.acierto,
                     (veredicto + u' ' + juicio.motivo).trimmed());
    mitad.ccrpAnimation->carga(juicio.acierto ? Sesión().AVIEureka() : Sesión().AVIError(),
                               juicio.acierto ? u"EUREKA"_s : u"ERROR"_s);
    mitad.ccrpAnimation->reproduce(ReproductorAVI::Modo::UnaVez);
    mitad.ccrpAnimation->setAccessibleName(veredicto);
}
