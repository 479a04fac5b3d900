#ifndef QX_EXERCISE_OBJECT_ID_H
#define QX_EXERCISE_OBJECT_ID_H

// Number of an object within its exercise; 0 is no object.
typedef unsigned long long DtExerciseObjectId;

#endif
