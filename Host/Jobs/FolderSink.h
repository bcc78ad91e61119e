// Jobs that go into a folder: without any server, and for tests of PPDs.
#pragma once

#include "Job.h"

namespace host {

/// Puts a copy of the document into a folder, and beside it a ticket in JSON with every option. Never over another
/// job. The folder is made when it is not there.
class FolderSink final : public JobSink
{
public:
    explicit FolderSink(QString folder)
        : m_folder(std::move(folder))
    {}
    foundation::Or<QString> submit(const Job &job, const JobProgress &progress, std::stop_token stop) override;

private:
    foundation::Problem failed(const QString &reason) const;
    QString path(const QString &name) const { return m_folder + '/' + name; }

    QString m_folder;
};

} // namespace host
