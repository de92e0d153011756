#include "fileops/CloneWorker.h"

#include "fileops/CloneItem.h"
#include "fileops/Dedupe.h"
#include "fileops/DeleteActions.h"
#include "fileops/ErrorText.h"
#include "fileops/ItemSafety.h"
#include "format/ByteSize.h"
#include "journal/Journal.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <limits>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace selfsame
{

namespace
{

struct CloneWorkerText {
    Q_DECLARE_TR_FUNCTIONS(CloneWorker)
};

void clearInodeFlags(const QString &path)
{
    const int fd = open(pathBytes(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return;
    int flags = 0;
    ioctl(fd, FS_IOC_SETFLAGS, &flags);
    close(fd);
}

// Lets a write-protected duplicate be moved aside: owner-write, no immutable flag, and a
// writable folder when it is ours. The snapshot puts everything back.
void liftWriteProtection(const QString &path, const FSMetadata &snapshot)
{
    if (snapshot.permissions) chmod(pathBytes(path).constData(), (*snapshot.permissions | 0200) & 07777);
    clearInodeFlags(path);
    const QByteArray folder = pathBytes(parentFolder(path));
    struct stat st {
    };
    if (stat(folder.constData(), &st) == 0 && st.st_uid == geteuid())
        chmod(folder.constData(), (st.st_mode | 0200) & 07777);
}

QString cloneByMovingAside(const ResultItem &reference, ResultItem &duplicate, bool changeOwner,
                           const CloneSteps &steps, Journal *journal)
{
    const QString &path = duplicate.path;
    if (!duplicate.has(IsFolder) && !sameContent(reference.path, path))
        return CloneWorkerText::tr("“%1” no longer has the content of “%2”")
            .arg(displayPath(path), displayPath(reference.path));
    const FSMetadata snapshot = captureFSMetadata(path);
    if (duplicate.has(ReadOnly)) liftWriteProtection(path, snapshot);
    const QString aside = besidePath(path);
    // Each step is recorded before it begins: an interrupted clone comes back as it was.
    JournaledStep journaled{journal, {}};
    journaled.step.kind = CloneInPlace;
    journaled.step.path = path;
    journaled.step.kept = reference.path;
    journaled.step.away = aside;
    if (!journaled.begin())
        return CloneWorkerText::tr("The operations journal could not record the step: %1")
            .arg(journal->error());
    if (const int error = steps.moveAside(path, aside)) {
        restoreFSMetadata(path, snapshot);
        recordCurrentState(duplicate);
        journaled.reach(Done);
        return CloneWorkerText::tr("“%1” could not be moved aside: %2")
            .arg(displayPath(path), errorText(error));
    }
    faultPoint("clone.moved-aside");
    journaled.reach(TakenAway);
    // The original is safe aside only if it is really there; never remove what holds its path otherwise.
    auto asideExists = [&] {
        struct stat st {
        };
        return lstat(pathBytes(aside).constData(), &st) == 0;
    };
    auto rollBack = [&] {
        renameNoReplace(aside, path);
        restoreFSMetadata(path, snapshot);
        recordCurrentState(duplicate); // the same file, its change time moved by our own steps
        journaled.reach(Done);
    };
    if (const int error = steps.clone(reference.path, path, reference.has(IsFolder))) {
        if (asideExists()) {
            removeItem(path); // a partial clone, if any
            rollBack();
        }
        return CloneWorkerText::tr("“%1” could not be cloned from “%2”: %3")
            .arg(displayPath(path), displayPath(reference.path), errorText(error));
    }
    faultPoint("clone.cloned");
    struct stat st {
    };
    if (stat(pathBytes(path).constData(), &st) == 0)
        chmod(pathBytes(path).constData(), (st.st_mode | 0200) & 07777);
    unsigned failed = steps.restore(path, snapshot);
    // Another owner's file becomes ours when we may not give it back: the user accepted that.
    if (changeOwner && duplicate.has(OtherOwner)) failed &= ~unsigned(RestoreOwner);
    if (failed && asideExists()) {
        removeItem(path);
        rollBack();
        return CloneWorkerText::tr(
                   "The metadata of “%1” could not be carried over to its clone; it was left as it was")
            .arg(displayPath(path));
    }
    journaled.reach(Replaced);
    faultPoint("clone.replaced");
    const int error = removeItem(aside);
    journaled.finish();
    if (error)
        return CloneWorkerText::tr("“%1” was cloned, but its former copy “%2” could not be removed: %3")
            .arg(displayPath(path), displayPath(aside), errorText(error));
    restoreParentFolder(path, snapshot);
    return {};
}

} // namespace

namespace
{

QString planFolderBase()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtime.isEmpty() || !QDir(runtime).exists() ? QDir::tempPath() : runtime;
}

} // namespace

std::unique_ptr<QTemporaryDir> makePlanFolder()
{
    // The process's id in the name tells, once it is gone, that nobody uses the folder any more.
    return std::make_unique<QTemporaryDir>(planFolderBase() + QStringLiteral("/Selfsame-%1-XXXXXX").arg(getpid()));
}

int removeStalePlanFolders()
{
    int removed = 0;
    const QDir base(planFolderBase());
    for (const QString &name : base.entryList({QStringLiteral("Selfsame-*-*")}, QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool number = false;
        const qint64 pid = name.section(u'-', 1, 1).toLongLong(&number);
        if (!number || pid <= 0 || pid > std::numeric_limits<pid_t>::max() ||
            !(kill(pid_t(pid), 0) != 0 && errno == ESRCH))
            continue;
        if (removeItem(base.filePath(name)) == 0) ++removed;
    }
    return removed;
}

CloneSteps CloneSteps::real()
{
    CloneSteps steps{dedupeFile, renameNoReplace, cloneItem, restoreFSMetadata};
    // The tests of interrupted clones need the move-aside way where the kernel would dedupe.
    if (qEnvironmentVariableIsSet("SELFSAME_TEST_NO_DEDUPE"))
        steps.dedupe = [](const QString &, const QString &) { return EOPNOTSUPP; };
    return steps;
}

QList<ResultItem *> filterDuplicates(const QList<ResultItem *> &duplicates, const ResultItem &reference,
                                     bool overideReadOnlyIfSameOwner, bool changeOwner,
                                     QList<ResultItem *> &previousClones)
{
    QList<ResultItem *> kept;
    const QByteArray ref = pathBytes(reference.path);
    struct statfs fs {
    };
    struct stat rs {
    };
    if (statfs(ref.constData(), &fs) != 0 || !isCloneCapableFileSystem(long(fs.f_type)) ||
        lstat(ref.constData(), &rs) != 0)
        return kept;
    for (ResultItem *d : duplicates) {
        if (d->has(ReadOnly) && (!overideReadOnlyIfSameOwner || d->has(OtherOwner))) continue;
        if (d->has(OtherOwner) && !changeOwner) continue;
        struct stat ds {
        };
        if (d->path == reference.path || lstat(pathBytes(d->path).constData(), &ds) != 0 ||
            ds.st_dev != rs.st_dev || ds.st_ino == rs.st_ino)
            continue;
        if (d->has(HasAllocDigest) && reference.has(HasAllocDigest) &&
            d->allocDigest == reference.allocDigest) {
            if (!previousClones.contains(d)) previousClones.append(d);
            continue;
        }
        kept.append(d);
    }
    return kept;
}

QString cloneDuplicate(const ResultItem &reference, ResultItem &duplicate, bool changeOwner,
                       const CloneSteps &steps, Journal *journal)
{
    if (QString changed = changedSinceSearch(duplicate); !changed.isEmpty()) return changed;
    if (QString problem = replacementProblem(duplicate, reference); !problem.isEmpty()) return problem;
    if (QString problem = keptCopyProblem(duplicate, reference, false); !problem.isEmpty()) return problem;
    if (!duplicate.has(IsFolder)) {
        const int shared = steps.dedupe(reference.path, duplicate.path);
        if (shared == 0) {
            // Sharing storage is one call that changes no name: recorded once done, for an undo.
            JournaledStep journaled{journal, {}};
            journaled.step.kind = CloneInPlace;
            journaled.step.path = duplicate.path;
            journaled.step.kept = reference.path;
            if (journaled.begin()) journaled.finish();
            return {};
        }
        if (shared == kContentDiffers)
            return CloneWorkerText::tr("“%1” no longer has the content of “%2”")
                .arg(displayPath(duplicate.path), displayPath(reference.path));
    }
    return cloneByMovingAside(reference, duplicate, changeOwner, steps, journal);
}

CloneWorker::CloneWorker(QList<ResultItem *> targets, QList<ResultItem *> mainItems,
                         DuplicatesFor duplicatesFor)
    : m_targets(std::move(targets)), m_mainItems(std::move(mainItems)),
      m_duplicatesFor(std::move(duplicatesFor))
{
}

bool CloneWorker::perform(bool perform, bool overideReadOnlyIfSameOwner, bool changeOwner,
                          CloneCounts *counts)
{
    CloneCounts local;
    CloneCounts &c = counts ? *counts : local;
    c = CloneCounts{};
    m_cloned.clear();
    m_failures.clear();
    QList<ResultItem *> items = m_targets;
    if (items.size() < 2) {
        items = m_mainItems;
        c.onAllFoundFiles = true;
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const ResultItem *a, const ResultItem *b) { return a->size > b->size; });
    const QSet<ResultItem *> among(items.begin(), items.end());

    QFile plan;
    if (!perform) {
        m_logFilePath.clear();
        QString path = planPath;
        if (path.isEmpty()) {
            m_planFolder = makePlanFolder();
            if (m_planFolder->isValid()) path = m_planFolder->filePath(QStringLiteral("Selfsame.log"));
        }
        // Opened by its bytes: a plan may be asked for under any name.
        const int fd = path.isEmpty() ? -1
                                      : open(pathBytes(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        if (fd >= 0 && plan.open(fd, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) m_logFilePath = path;
        else if (fd >= 0) close(fd);
    }

    const BatchScope batch(perform ? journal : nullptr, QStringLiteral("clone"));
    QSet<ResultItem *> done;
    QList<ResultItem *> alreadyClones;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (progress && !progress(int(i), int(items.size()))) return false;
        ResultItem *r = items[i];
        if (done.contains(r) || alreadyClones.contains(r)) continue;
        const QList<ResultItem *> candidates =
            filterDuplicates(m_duplicatesFor(*r), *r, overideReadOnlyIfSameOwner, changeOwner, alreadyClones);
        bool produced = false;
        for (ResultItem *d : candidates) {
            if (done.contains(d) || !among.contains(d)) continue;
            if (!perform && plan.isOpen()) {
                // Paths go into the plan as their bytes, as a shell would name them.
                if (!produced)
                    plan.write(pathBytes(r->path) + " (" + formatByteCount(r->physicalSize).toUtf8() +
                               " on disk) will be cloned to:\n");
                const bool writeProtected = d->has(ReadOnly) && !d->has(OtherOwner);
                plan.write('\t' + pathBytes(d->path) + (writeProtected ? " (write-protected)" : "") +
                           (d->has(OtherOwner) ? " (other owner)" : "") + '\n');
                c.writeProtected += writeProtected ? 1 : 0;
                c.otherOwner += d->has(OtherOwner) ? 1 : 0;
            } else if (perform) {
                if (QString why = cloneDuplicate(*r, *d, changeOwner, steps, journal); !why.isEmpty()) {
                    m_failures.append({d, why});
                    continue;
                }
                m_cloned.append(d);
                d->setStatusImage(QStringLiteral("cloned"));
            }
            done.insert(d);
            ++c.replaceDuplicates;
            c.singleFilenameToReplace = c.replaceDuplicates == 1 ? displayName(d->path) : QString();
            c.ofPhysicalSize += d->physicalSize;
            produced = true;
        }
        if (produced) {
            done.insert(r);
            ++c.byClones;
            c.singleFilenameToClone = c.byClones == 1 ? displayName(r->path) : QString();
        }
    }
    return true;
}

} // namespace selfsame
