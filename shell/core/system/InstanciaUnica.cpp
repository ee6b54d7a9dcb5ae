#include "shell/core/system/InstanciaUnica.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

InstanciaUnica::InstanciaUnica(const QString &archivo)
{
    QDir().mkpath(QFileInfo(archivo).absolutePath());
    // Close-on-exec: a calculator started from the toolbar must not inherit the lock.
    m_descriptor = open(QFile::encodeName(archivo).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    m_hayOtra =
        m_descriptor >= 0 && flock(m_descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

InstanciaUnica::~InstanciaUnica()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}
