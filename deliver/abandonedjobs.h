#pragma once

class OwnFolder;

/// The scheduler takes a job for printed whose backend was killed whole: both processes at once. It is not,
/// or nobody knows. So each backend that ends looks for such jobs among the last ones, by the records in
/// `folder`, and has the scheduler start them again, only to have them held for a person. Removes old
/// records, too.
void saveAbandonedJobs(const OwnFolder &folder);
