#pragma once

#include "platform/foundation/Result.h"
#include "platform/services/Mail.h"

#include <QStringList>

// Writes each attachment into a folder of its own below `folder`, which must be private to the user, and
// answers the files' paths in their order. Names must be harmless. Runs on any thread.
[[nodiscard]] Result<QStringList> writeAttachments(const QString& folder,
                                                   const std::vector<MailAttachment>& attachments);
