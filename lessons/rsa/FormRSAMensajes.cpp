#include "lessons/rsa/FormRSAMensajes.h"

#include "lessons/rsa/BotonDeParada.h"
#include "lessons/rsa/Buzon.h"
#include "lessons/rsa/FormClaveRSA.h"
#include "lessons/rsa/TextoEnBloques.h"
#include "shell/Aspecto.h"
#include "shell/Evento.h"
#include "shell/FormLeccion.h"
#include "shell/Formatos.h"
#include "shell/Imagenes.h"
#include "shell/Interlocutor.h"
#include "shell/ModGlobal.h"
#include "shell/Textos.h"
#include "ui_FormRSAMensajes.h"

#include <QHeaderView>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

FormRSAMensajes::FormRSAMensajes(ClsRSA &clave, FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRSAMensajes>()),
      m_clave(clave),
      m_tabla(Traduce(u"<Dirigido a     |<De           |<Asunto"_s)),
      m_leccion(leccion),
      m_ventanaClave(new FormClaveRSA(this))
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->enviar->setIcon(Icono(u"ENVIAR"_s));
    ui->recibir->setIcon(Icono(u"RECIBIR"_s));
    ui->revisar->setIcon(Icono(u"REVISAR"_s));
    Aspecto::destaca(ui->LabelTexto);
    ui->FlexMensajes->setModel(&m_tabla);
    ui->FlexMensajes->setSelectionMode(QAbstractItemView::SingleSelection);
    ui->FlexMensajes->ponTextoVacio(Traduce(u"No hay mensajes en el buzón"_s));
    ui->FlexMensajes->horizontalHeader()->setStretchLastSection(true);
    ui->cmbDestinatario->setCurrentText({});

    conecta(ui->FlexMensajes, &QTableView::clicked, this,
            [this](const QModelIndex &celda) { FlexMensajes_Click(celda.row()); });
    conecta(ui->FlexMensajes->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &celda) { FlexMensajes_Click(celda.row()); });
    conecta(ui->cmbDestinatario, &QComboBox::activated, this,
            [this] { cmbDestinatario_Validate(); });
    conecta(ui->cmbDestinatario->lineEdit(), &QLineEdit::editingFinished, this,
            &FormRSAMensajes::cmbDestinatario_Validate);
    conecta(ui->txtDestTextoOriginal, &QPlainTextEdit::textChanged, this,
            &FormRSAMensajes::txtDestTextoOriginal_Change);
    conecta(m_ventanaClave, &FormClaveRSA::puedeRecibir, this, [this] { habilita(); });
    conecta(ui->enviar, &QToolButton::clicked, this, &FormRSAMensajes::enviar_Click);
    conecta(ui->recibir, &QToolButton::clicked, this, &FormRSAMensajes::recibir_Click);
    conecta(ui->revisar, &QToolButton::clicked, this, &FormRSAMensajes::revisar_Click);
    connect(&m_clave, &ClsRSA::ValidaClave, this,
            [this](bool &bien) { m_clavePropiaPisada = m_clavePropiaPisada && !bien; });
}

FormRSAMensajes::~FormRSAMensajes()
{
    try {
        devuelveClavePropia();
    } catch (const ErrorEjecucion &) {
        // The window is gone; there is nobody left to tell.
    }
}

void FormRSAMensajes::showEvent(QShowEvent *suceso)
{
    QWidget::showEvent(suceso);
    if (!m_destinatario.isEmpty())
        m_ventanaClave->muestra();
}

void FormRSAMensajes::hideEvent(QHideEvent *suceso)
{
    QWidget::hideEvent(suceso);
    m_ventanaClave->hide();
    evento(this, [this] { devuelveClavePropia(); });
}

/// Choosing a correspondent writes the correspondent's numbers into the private key file. The own
/// key goes back before the topic is left, so that no way of going on loses it.
void FormRSAMensajes::devuelveClavePropia()
{
    if (m_clavePropiaPisada && m_clave.ClaveOK())
        m_clave.SalvaClave();
    m_clavePropiaPisada = false;
}

void FormRSAMensajes::habilita()
{
    const bool libre = !m_leccion->corrida().enCurso();
    const bool hayTexto = !ui->txtDestTextoOriginal->toPlainText().trimmed().isEmpty();
    ui->enviar->setEnabled(m_parada == ui->enviar ||
                           (libre && !m_destinatario.isEmpty() && hayTexto));
    ui->recibir->setEnabled(m_parada == ui->recibir ||
                            (libre && !m_ventanaClave->t().trimmed().isEmpty()));
    ui->revisar->setEnabled(m_parada == ui->revisar || libre);
}

void FormRSAMensajes::eligeDestinatario(const QString &usuario)
{
    m_destinatario = usuario;
    ui->LabelTexto->setText(Traduce(u"Mensaje para "_s) + usuario);
    habilita();
    const bool esPropio = usuario == Sesión().UserName();
    m_ventanaClave->ponCorresponsal(usuario, leeClavePublica(m_clave.DirMensajes(), usuario),
                                    esPropio ? m_clave.t() : QString());
    m_claveAjena.ponq(0, m_ventanaClave->q());
    m_claveAjena.pons(m_ventanaClave->s());
    m_claveAjena.ponr(1);
    m_claveAjena.pont(m_ventanaClave->t());
    m_clavePropiaPisada = true;
    m_claveAjena.ponClaveOK(true);
    if (isVisible())
        m_ventanaClave->muestra();
}

void FormRSAMensajes::FlexMensajes_Click(int fila)
{
    if (fila < 0 || (fila == m_filaMostrada && m_tabla.filas()[fila][0] == m_destinatario))
        return;
    const clsMensaje *mensaje = m_mensajes.Item(claveDeFila(fila));
    if (!mensaje)
        return;
    m_filaMostrada = fila;
    ui->cmbDestinatario->setCurrentText(mensaje->Destinatario());
    ui->txtAsunto->setText(mensaje->Asunto());
    ui->txtDestTextoOriginal->setPlainText(mensaje->TextoOriginal());
    eligeDestinatario(mensaje->Destinatario());
}

void FormRSAMensajes::cmbDestinatario_Validate()
{
    const QString usuario = ui->cmbDestinatario->currentText().trimmed();
    if (usuario == m_destinatario)
        return;
    m_filaMostrada = -1;
    if (!usuario.isEmpty()) {
        eligeDestinatario(usuario);
        return;
    }
    m_destinatario.clear();
    ui->LabelTexto->setText(Traduce(u"Mensaje"_s));
    m_ventanaClave->hide();
    habilita();
}

void FormRSAMensajes::txtDestTextoOriginal_Change()
{
    habilita();
}

QString FormRSAMensajes::claveDeFila(int fila) const
{
    const QStringList &textos = m_tabla.filas()[fila];
    return ColMensajes::clave(textos[1], textos[0], textos[2]);
}

void FormRSAMensajes::revisaPronto()
{
    QTimer::singleShot(0, this, [this] {
        evento(this, [this] {
            if (!m_leccion->corrida().enCurso())
                revisa();
        });
    });
}

void FormRSAMensajes::revisar_Click()
{
    if (m_parada == ui->revisar)
        m_leccion->corrida().detener();
    else if (!m_leccion->corrida().enCurso())
        revisa();
}

template <typename Accion>
void FormRSAMensajes::corre(QAbstractButton *boton, const QString &consejo, Accion accion)
{
    const auto alFinal = qScopeGuard([this] { habilita(); });
    const Corrida::Tramo tramo(m_leccion->corrida());
    const BotonDeParada aspecto(boton, consejo);
    const QScopedValueRollback<QAbstractButton *> parada(m_parada, boton);
    m_leccion->corrida().permitir();
    habilita();
    accion();
}

void FormRSAMensajes::revisa()
{
    corre(ui->revisar, Traduce(u"Detener la revisión"_s), [this] {
        QString estado;
        const auto alFinal = qScopeGuard([&] { muestraLista(estado); });
        try {
            const int ilegibles =
                revisaBuzon(m_clave.DirMensajes(), m_mensajes, m_leccion->corrida());
            if (m_leccion->corrida().detenida())
                estado = Traduce(u"Revisión detenida"_s) + u". "_s;
            estado += Traduce(u"Mensajes: %1"_s).arg(formatoEntero(m_mensajes.Count()));
            if (ilegibles > 0)
                estado += u". "_s + Traduce(u"No se han podido leer: %1"_s).arg(ilegibles);
        } catch (const ErrorEjecucion &) {
            Q_EMIT buzonPerdido();
            throw;
        }
    });
}

void FormRSAMensajes::muestraLista(const QString &estado)
{
    const QString mostrada = m_filaMostrada >= 0 ? claveDeFila(m_filaMostrada) : QString();
    QList<QStringList> filas;
    filas.reserve(m_mensajes.Count());
    int filaMostrada = -1;
    for (const auto &mensaje : m_mensajes) {
        filas << QStringList{mensaje->Destinatario(), mensaje->Remitente(), mensaje->Asunto()};
        const auto suya = ColMensajes::clave(filas.last()[1], filas.last()[0], filas.last()[2]);
        if (!mostrada.isEmpty() && suya == mostrada)
            filaMostrada = static_cast<int>(filas.size()) - 1;
    }
    m_tabla.ponFilas(filas);
    // A list made anew takes nothing away from what is being written.
    m_filaMostrada = filaMostrada;
    if (filaMostrada >= 0)
        ui->FlexMensajes->selectRow(filaMostrada);
    const QString escrito = ui->cmbDestinatario->currentText();
    ui->cmbDestinatario->clear();
    if (ExisteFichero(m_clave.DirMensajes()))
        ui->cmbDestinatario->addItems(usuariosDelBuzon(m_clave.DirMensajes()));
    ui->cmbDestinatario->setCurrentText(escrito);
    ui->lblEstadoBuzon->setText(estado);
}

bool FormRSAMensajes::esRepetido(const QString &destinatario, const QString &asunto)
{
    const QString remitente = Sesión().UserName();
    if (!m_mensajes.Item(ColMensajes::clave(remitente, destinatario, asunto)))
        return false;
    interlocutor().mensaje(this, Interlocutor::Icono::Critico,
                           Traduce(u"Ya hay un mensaje de "_s) + remitente + Traduce(u" para "_s) +
                               destinatario + Traduce(u" con asunto '"_s) + asunto + u'\'',
                           Traduce(u"Mensaje repetido"_s));
    return true;
}

bool FormRSAMensajes::puedeViajar(const QString &texto)
{
    const auto motivo = caracterInadmisible(texto);
    if (motivo)
        interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion, *motivo,
                               Traduce(u"Carácter no admitido"_s));
    return !motivo;
}

/// Text and subject may both be unfit; one box tells it.
void FormRSAMensajes::escuchaErrores(clsMensaje &mensaje)
{
    connect(
        &mensaje, &clsMensaje::ErrorMensaje, this,
        [this](const QString &motivo) {
            interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion, motivo,
                                   Traduce(u"Error en el mensaje"_s));
        },
        Qt::SingleShotConnection);
}

void FormRSAMensajes::enviar_Click()
{
    if (m_parada == ui->enviar)
        m_leccion->corrida().detener();
    else if (!m_leccion->corrida().enCurso())
        envia();
}

void FormRSAMensajes::envia()
{
    const QString texto = ui->txtDestTextoOriginal->toPlainText();
    const QString asunto = ui->txtAsunto->text();
    if (esRepetido(m_destinatario, asunto) || !puedeViajar(texto) || !puedeViajar(asunto))
        return;
    const bool tieneClave = !m_claveAjena.q(0).isEmpty() && !m_claveAjena.s().isEmpty();
    const QString pregunta =
        Traduce(u"%1 no ha publicado su clave: nadie podrá leer el mensaje. ¿Enviarlo así?"_s);
    if (!tieneClave && !interlocutor().confirma(this, pregunta.arg(m_destinatario),
                                                Traduce(u"Falta la clave pública"_s)))
        return;
    corre(ui->enviar, Traduce(u"Detener el envío"_s), [&] {
        clsMensaje mensaje;
        escuchaErrores(mensaje);
        mensaje.ponMensajeOK(true);
        mensaje.ponClave(&m_claveAjena);
        mensaje.ponDestinatario(m_destinatario);
        mensaje.ponRemitente(Sesión().UserName());
        mensaje.ponTextoOriginal(texto);
        mensaje.ponAsunto(asunto);
        mensaje.CodificaTexto(m_leccion->corrida());
        if (m_leccion->corrida().detenida())
            return;
        mensaje.Envia();
        const QString fichero = mensaje.NombreFichero().section(u'\\', -1);
        ui->lblEstadoBuzon->setText(Traduce(mensaje.MensajeOK()
                                                ? u"Mensaje enviado a %1 (%2)"_s
                                                : u"El mensaje a %1 ha salido sin texto (%2)"_s)
                                        .arg(mensaje.Destinatario(), fichero));
    });
}

void FormRSAMensajes::recibir_Click()
{
    if (m_parada == ui->recibir)
        m_leccion->corrida().detener();
    else if (!m_leccion->corrida().enCurso())
        recibe();
}

void FormRSAMensajes::recibe()
{
    const int fila = ui->FlexMensajes->currentIndex().row();
    clsMensaje *mensaje = fila < 0 ? nullptr : m_mensajes.Item(claveDeFila(fila));
    if (!mensaje) {
        interlocutor().mensaje(this, Interlocutor::Icono::Informacion,
                               Traduce(u"Elija primero un mensaje de la lista."_s),
                               Traduce(u"Recibir el mensaje"_s));
        return;
    }
    corre(ui->recibir, Traduce(u"Detener la lectura"_s), [&] {
        m_claveAjena.pont(m_ventanaClave->t());
        mensaje->ponClave(&m_claveAjena);
        mensaje->disconnect(this);
        escuchaErrores(*mensaje);
        mensaje->Recibe(m_leccion->corrida());
        ui->txtAsunto->setText(mensaje->Asunto());
        ui->txtDestTextoOriginal->setPlainText(mensaje->TextoOriginal());
    });
}
