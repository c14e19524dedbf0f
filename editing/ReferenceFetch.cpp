#include "editing/ReferenceFetch.h"

#include "platform/foundation/Console.h"
#include "platform/store/NSManagedObjectContext.h"

ReferenceRecords fetchedReferences(NSManagedObjectContext& context, NSFetchRequest request)
{
    request.setReturnsObjectsAsFaults(false);
    const auto fetched = context.fetch(request);
    if (!fetched) {
        console(fetched.error().localizedDescription);
        return {};
    }
    ReferenceRecords records;
    for (const auto& record : fetched.value())
        records.push_back(std::static_pointer_cast<ReferenceRecord>(record));
    return records;
}
