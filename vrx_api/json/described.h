#pragma once

namespace vrx
{

class BinaryValue;
class ByteWriter;
class FieldLister;
class SizeWriter;
class TreeValue;
class TreeWriter;

template <class Value>
class FieldReader;

template <class Out>
class FieldWriter;

/// The walks over the description of a class; fields.h tells what a description is.
///
/// The description of a class is a template in its source, so that nobody else can walk over it. The source therefore
/// has the line `template struct Described<ExcBlock>;`, which instantiates all walks, and others call only these. A
/// base whose derived classes begin their descriptions with its own says so in its header, by the same line as `extern
/// template`: without it the sources of the derived classes instantiate the walks themselves and do not find the
/// description, which a debug build may not notice and a release build does.
///
/// A new walk is a new function here, and changes no class.
template <class T>
struct Described
{
    /// One walk over the description, for one kind of fields.
    static void walk(T& object, FieldReader<TreeValue>& fields);
    static void walk(T& object, FieldReader<BinaryValue>& fields);
    static void walk(const T& object, FieldWriter<TreeWriter>& fields);
    static void walk(const T& object, FieldWriter<SizeWriter>& fields);
    static void walk(const T& object, FieldWriter<ByteWriter>& fields);
    static void walk(const T& object, FieldLister& fields);
};

} // namespace vrx
