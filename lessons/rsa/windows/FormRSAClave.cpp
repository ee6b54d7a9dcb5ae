#include "lessons/rsa/windows/FormRSAClave.h"

#include "bignum/gateway/Azar.h"
#include "lessons/rsa/key/Entero16.h"
#include "lessons/rsa/key/NumerosLargos.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormRSAClave.h"

#include <QDir>
#include <QRegularExpressionValidator>
#include <QScopeGuard>
#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;

namespace {

/// While a number is typed, numbers up to this size are tested at each key; the test of larger ones
/// would be felt in the fingers.
constexpr qsizetype CifrasAlVuelo = 700;

void soloLectura(CampoLargo *campo)
{
    campo->setReadOnly(true);
    campo->viewport()->setBackgroundRole(QPalette::Window);
}

} // namespace

FormRSAClave::FormRSAClave(ClsRSA &clave, QWidget *leccion)
    : QWidget(leccion), ui(std::make_unique<Ui::FormRSAClave>()), m_clave(clave)
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdBuzon->setIcon(Icono(u"BUZON"_s));
    ui->cmdPublicarClave->setIcon(Icono(u"PUBLICAR"_s));
    for (QLineEdit *campo : {ui->txtR, ui->TxtNumBits}) {
        static const QRegularExpression cifras(u"[0-9]*"_s);
        campo->setValidator(new QRegularExpressionValidator(cifras, campo));
    }
    for (CampoLargo *campo : {ui->txtQ_0, ui->txtFiQ, ui->txtT})
        soloLectura(campo);
    ui->txtR->setText(u"1"_s);
    m_clave.ponr(1);
    ui->TxtNumBits->setText(QString::number(AleatorioEntre(100, 200)));

    for (const int i : {1, 2}) {
        conecta(txtQ(i), &CampoLargo::editingFinished, this, [this, i] { txtQ_Validate(i); });
        conecta(txtQ(i), &CampoLargo::returnPressed, this, [this, i] { txtQ_Return(i); });
        conecta(txtQ(i), &CampoLargo::textoCambiado, this, &FormRSAClave::muestraObjecion);
    }
    conecta(ui->txtS, &CampoLargo::editingFinished, this, &FormRSAClave::txtS_Validate);
    conecta(ui->txtS, &CampoLargo::returnPressed, this, &FormRSAClave::txtS_Return);
    conecta(ui->txtS, &CampoLargo::textoCambiado, this, &FormRSAClave::muestraObjecion);
    conecta(ui->txtR, &QLineEdit::textChanged, this, &FormRSAClave::txtR_Change);
    conecta(ui->ChkNumBits, &QCheckBox::clicked, this, &FormRSAClave::ChkNumBits_Click);
    conecta(ui->TxtNumBits, &QLineEdit::textChanged, this, &FormRSAClave::TxtNumBits_Change);
    conecta(ui->cmdBuzon, &QPushButton::clicked, this, &FormRSAClave::cmdBuzon_Click);
    conecta(ui->cmdPublicarClave, &QPushButton::clicked, this,
            &FormRSAClave::cmdPublicarClave_Click);
    muestraObjecion();
}

FormRSAClave::~FormRSAClave() = default;

CampoLargo *FormRSAClave::txtQ(int i) const
{
    return std::array{ui->txtQ_0, ui->txtQ_1, ui->txtQ_2}[static_cast<std::size_t>(i)];
}

void FormRSAClave::muestraClave()
{
    for (const int i : {0, 1, 2})
        txtQ(i)->setText(m_clave.q(i));
    ui->txtFiQ->setText(m_clave.FiQ());
    ui->txtS->setText(m_clave.s());
    ui->txtT->setText(m_clave.t());
    const QString bits = m_clave.nbits() > 0 ? QString::number(m_clave.nbits()) : QString();
    ui->LabelNumBits->setText(Traduce(u"Nº de bits de la clave ="_s) + u' ' + bits);
    // The key that was recovered may have another block length than the field begins with.
    const QSignalBlocker callado(ui->txtR);
    ui->txtR->setText(QString::number(m_clave.r()));
}

void FormRSAClave::ponEstado(Estado estado, const QString &texto)
{
    m_estado = estado;
    m_textoDeEstado = abreviaNumeros(texto);
    muestraEstado();
}

void FormRSAClave::muestraEstado()
{
    if (m_estado != Estado::Neutro) {
        ::muestraVeredicto(ui->lblEstado, m_estado == Estado::Bien, m_textoDeEstado);
        return;
    }
    ui->lblEstado->setPalette(palette());
    ui->lblEstado->setText(m_textoDeEstado);
}

void FormRSAClave::changeEvent(QEvent *suceso)
{
    QWidget::changeEvent(suceso);
    if (suceso->type() == QEvent::PaletteChange)
        muestraEstado();
}

void FormRSAClave::muestraVeredicto(bool bien, const QString &mensaje)
{
    ponEstado(bien ? Estado::Bien : Estado::Mal, mensaje);
    if (bien) {
        ui->lblFichero->show();
        ui->lblFichero->setText(Traduce(u"Su clave privada se guarda en %1"_s)
                                    .arg(rutaDePlataforma(m_clave.FicheroClavePrivada())));
    }
}

/// Says at each key what a validation would object to, before it is asked for.
void FormRSAClave::muestraObjecion()
{
    const bool cabe = std::max({ui->txtQ_1->text().size(), ui->txtQ_2->text().size(),
                                ui->txtS->text().size()}) <= CifrasAlVuelo;
    ClsRSA escrita(m_clave.sesion());
    escrita.ponr(m_clave.r());
    escrita.ponNBitsRequeridos(m_clave.NBitsRequeridos());
    escrita.ponq(1, ui->txtQ_1->text());
    escrita.ponq(2, ui->txtQ_2->text());
    escrita.pons(ui->txtS->text());
    const QString objecion = cabe ? escrita.Objecion() : QString();
    if (!objecion.isEmpty()) {
        ponEstado(Estado::Mal, objecion);
        return;
    }
    const bool completa =
        !escrita.q(1).isEmpty() && !escrita.q(2).isEmpty() && !escrita.s().isEmpty();
    ponEstado(Estado::Neutro,
              completa
                  ? Traduce(u"Pulse Intro para comprobar y guardar la clave."_s)
                  : Traduce(u"Escriba dos primos, q(1) y q(2), y un número s primo con φ(q)."_s));
}

void FormRSAClave::valida()
{
    const auto alFinal = qScopeGuard([this] { Q_EMIT validada(); });
    m_clave.Valida();
}

void FormRSAClave::txtQ_Return(int i)
{
    m_clave.ponq(i, txtQ(i)->text());
    ui->txtFiQ->setText({});
    ui->txtT->setText({});
    valida();
}

void FormRSAClave::txtQ_Validate(int i)
{
    // The Enter key may have done it already.
    if (txtQ(i)->text() != m_clave.q(i))
        txtQ_Return(i);
}

void FormRSAClave::txtS_Return()
{
    m_clave.pons(ui->txtS->text());
    valida();
}

void FormRSAClave::txtS_Validate()
{
    if (ui->txtS->text() != m_clave.s())
        txtS_Return();
}

void FormRSAClave::txtR_Change()
{
    m_clave.ponr(aEntero16(ui->txtR->text()));
    muestraObjecion();
    valida();
}

void FormRSAClave::ChkNumBits_Click()
{
    const bool exige = ui->ChkNumBits->isChecked();
    // First of all, because a number that is too large can only be changed in the field.
    ui->TxtNumBits->setEnabled(exige);
    m_clave.ponNBitsRequeridos(exige ? aEntero16(ui->TxtNumBits->text()) : std::int16_t{0});
    muestraObjecion();
}

void FormRSAClave::TxtNumBits_Change()
{
    if (!ui->ChkNumBits->isChecked())
        return;
    m_clave.ponNBitsRequeridos(aEntero16(ui->TxtNumBits->text()));
    muestraObjecion();
}

void FormRSAClave::cmdBuzon_Click()
{
    const QString pregunta =
        Traduce(u"Seleccione la carpeta compartida donde enviar y recibir los mensajes."_s) +
        u'\n' + Traduce(u"(Cancelar puede eliminar toda la información)"_s);
    m_clave.ponDirMensajes(interlocutor().pideCarpeta(this, pregunta, m_clave.DirMensajes()));
}

void FormRSAClave::cmdPublicarClave_Click()
{
    if (m_clave.DirMensajes().isEmpty())
        return;
    m_clave.PublicaClave();
    ponEstado(Estado::Bien, Traduce(u"Clave publicada en el buzón: ya le pueden escribir."_s));
}

void FormRSAClave::muestraBuzon(bool sePuedePublicar)
{
    const QString carpeta = m_clave.DirMensajes();
    const QString texto = carpeta.isEmpty()        ? Traduce(u"Todavía no ha elegido un buzón."_s)
                          : ExisteFichero(carpeta) ? Traduce(u"Buzón: %1"_s)
                                                   : Traduce(u"No se encuentra el buzón: %1"_s);
    ui->lblBuzon->setText(carpeta.isEmpty() ? texto : texto.arg(QDir::toNativeSeparators(carpeta)));
    ui->cmdPublicarClave->setEnabled(sePuedePublicar);
}
