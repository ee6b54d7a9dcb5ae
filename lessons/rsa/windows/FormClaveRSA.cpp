#include "lessons/rsa/windows/FormClaveRSA.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormClaveRSA.h"

#include <QScreen>

using namespace Qt::Literals::StringLiterals;

FormClaveRSA::FormClaveRSA(QWidget *padre)
    : QWidget(padre, Qt::Tool | Qt::WindowStaysOnTopHint), ui(std::make_unique<Ui::FormClaveRSA>())
{
    ui->setupUi(this);
    traduceVentana(this);
    setWindowIcon(Icono(u"RSA"_s));
    setAttribute(Qt::WA_ShowWithoutActivating);
    conecta(ui->TxtDestT, &CampoLargo::textoCambiado, this, &FormClaveRSA::TxtDestT_Change);
}

FormClaveRSA::~FormClaveRSA() = default;

void FormClaveRSA::ponCorresponsal(const QString &usuario, const ClsRSA &clave)
{
    setWindowTitle(Traduce(u"Clave de "_s) + usuario);
    ui->txtDestQ->setText(clave.q(0));
    ui->txtDestS->setText(clave.s());
    ui->TxtDestT->setText(clave.t());
}

void FormClaveRSA::muestra()
{
    if (!m_colocada) {
        const QRect pantalla = screen()->availableGeometry();
        resize(std::min(sizeHint().width(), pantalla.width() / 3), sizeHint().height());
        const QPoint esquina(width() + 2 * Aspecto::Margen, height() + 6 * Aspecto::Margen);
        move(pantalla.bottomRight() - esquina);
        m_colocada = true;
    }
    show();
}

QString FormClaveRSA::t() const
{
    return ui->TxtDestT->text();
}

void FormClaveRSA::TxtDestT_Change()
{
    Q_EMIT puedeRecibir(!t().trimmed().isEmpty());
}
