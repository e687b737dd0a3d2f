// What host calls on entities answer.
#pragma once

namespace Acad {

enum ErrorStatus {
  eOk = 0,
  eInvalidInput = 3,
  eNullObjectId = 17,
  eNotOpenForWrite = 37,
  eWasErased = 40,
  eWasOpenForRead = 42,
  eWasOpenForWrite = 43,
  eNotThatKindOfClass = 60,
  eKeyNotFound = 67,
  eExtendedDataTooLarge = 68,
  eHiddenLayer = 69,
  eUserBreak = 70,
  eNothingSelected = 71,
};

}  // namespace Acad

namespace AcDb {

enum OpenMode { kForRead, kForWrite };

}  // namespace AcDb
