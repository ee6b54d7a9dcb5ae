// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormAcercaDe.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/system/Herramientas.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/start/Carencias.h"
#include "ui_FormAcercaDe.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QVersionNumber>

using namespace Qt::Literals::StringLiterals;

formAcercaDe::formAcercaDe(QWidget *padre)
    : QDialog(padre), ui(std::make_unique<Ui::formAcercaDe>())
{
    ui->setupUi(this);
    traduceVentana(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    ui->lblDisclaimer->setText(Traduce(u"© 2026 Los autores de Numora. Software libre (GPL)."_s));
    ui->lblDisclaimer->setCursor(Cursor(u"MANO"_s, {10, 3}));
    ui->lblDisclaimer->installEventFilter(this);
    setWindowIcon(Icono(u"NUMORA"_s));
    const QString titulo = QApplication::applicationName();
    setWindowTitle(Traduce(u"Acerca de "_s) + titulo);
    const auto version = QVersionNumber::fromString(QApplication::applicationVersion());
    ui->lblVersion->setText(Traduce(u"Versión beta "_s) +
                            u"%1.%2 Rev. %3"_s.arg(version.majorVersion())
                                .arg(version.minorVersion())
                                .arg(version.microVersion()));
    ui->lblTitle->setText(titulo);

    Aspecto::destaca(ui->lblTitle, 2.4);
    ui->AniEscudo->carga(u"ClipArt\\escudo.avi"_s, u"ESCUDO"_s);
    ui->AniEscudo->setMinimumSize(ui->AniEscudo->sizeHint() * 1.5);

    const QStringList frases = carencias();
    ui->lblCarencias->setVisible(!frases.isEmpty());
    ui->lblCarencias->setText(Traduce(u"En este equipo:"_s) + u'\n' + frases.join(u'\n'));

    conecta(ui->cmdOK, &QPushButton::clicked, this, &formAcercaDe::cmdOK_Click);
    conecta(ui->cmdSysInfo, &QPushButton::clicked, this, &formAcercaDe::cmdSysInfo_Click);
}

formAcercaDe::~formAcercaDe() = default;

void formAcercaDe::cmdOK_Click()
{
    close();
}

void formAcercaDe::reject()
{
    close();
}

void formAcercaDe::cmdSysInfo_Click()
{
    if (!interlocutor().lanzaAlguno(informadores()))
        interlocutor().avisa(parentWidget(), Interlocutor::Icono::Informacion,
                             Traduce(u"System Information Is Unavailable At This Time"_s),
                             windowTitle());
}

void formAcercaDe::lblDisclaimer_Click()
{
    const QString direccion = Sesión().TarvoURL();
    if (!direccion.isEmpty())
        interlocutor().abre(direccion);
}

void formAcercaDe::showEvent(QShowEvent *suceso)
{
    QDialog::showEvent(suceso);
    // Decoding starts when the first picture is on screen, so that it does not delay it.
    QTimer::singleShot(0, this,
                       [this] { ui->AniEscudo->reproduce(ReproductorAVI::Modo::Continuo); });
}

void formAcercaDe::changeEvent(QEvent *suceso)
{
    QDialog::changeEvent(suceso);
    if (suceso->type() != QEvent::ActivationChange)
        return;
    if (isActiveWindow())
        m_tuvoElFoco = true;
    else if (m_tuvoElFoco)
        close();
}

void formAcercaDe::closeEvent(QCloseEvent *suceso)
{
    // Not QDialog's own, which would call reject() and so this again.
    Q_EMIT descargada();
    suceso->accept();
}

bool formAcercaDe::eventFilter(QObject *objeto, QEvent *suceso)
{
    const bool tecla = suceso->type() == QEvent::KeyPress &&
                       static_cast<QKeyEvent *>(suceso)->key() == Qt::Key_Space;
    if (objeto == ui->lblDisclaimer && (tecla || suceso->type() == QEvent::MouseButtonRelease)) {
        evento(this, [this] { lblDisclaimer_Click(); });
        return true;
    }
    return QDialog::eventFilter(objeto, suceso);
}
