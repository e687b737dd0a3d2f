// The drawing database: entities, pipes, layers and text styles, what belongs to what, changes with their
// undo. Files are none of its business (host/dxf), nor is what pipes connect to (connections.h).
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/drawing/drawing_data.h"
#include "host/drawing/object_id.h"
#include "host/drawing/status.h"

class ZcDbEntity;
struct ZcRxClass;

namespace zwt {

class Connections;
class Drawing;

/// Something that happened to a drawing.
struct DrawingChange {
  enum class Kind { Add, Erase, Modify, SetDiameter, SetField, Graphics };

  Kind kind = Kind::Modify;
  AcDbObjectId id;  // none for Graphics
  std::uint64_t handle = 0;
  CString type;          // of Add and Erase: the entity's type as files name it
  CString layer;         // of Add and Erase
  bool hasText = false;  // of Add and Erase: whether the entity shows a text
  CString text;          // that text; of SetField the new text
  CString key;           // of SetField
  double diameter = 0;   // of SetDiameter
  bool byUndo = false;   // an undo or redo did it
};

/// Listens to a drawing. Calls come during the change: listen, don't change the drawing.
class DrawingObserver {
 public:
  virtual ~DrawingObserver() = default;
  virtual void OnChange(const DrawingChange& change) = 0;
  /// A change was refused; message is one line for the user.
  virtual void OnRefusal(const CString& message);
};

/// What a text shows and how it stands.
struct TextValues {
  CString content;
  AcGePoint3d position;         // the point by which it is aligned
  double height = 2.5;          // above 0
  double rotation = 0;          // radians, counter-clockwise
  std::int32_t color = 256;     // index; 256: that of the layer
  std::int32_t horizontal = 0;  // 0 left, 1 centre, 2 right
  std::int32_t vertical = 0;    // 0 baseline, 1 bottom, 2 middle, 3 top
  AcDbObjectId style;           // none: the standard one
  AcDbObjectId layer;           // none: layer 0
};

/// Fields to be set on one entity.
struct FieldsOfPipe {
  std::int32_t entity = 0;
  FieldList fields;
};

class Drawing {
 public:
  /// An empty drawing of the version that new drawings have.
  Drawing();
  explicit Drawing(DrawingData data);
  ~Drawing();
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

  // What there is. Indices of entities are their drawing order and never change.

  const DrawingData& Data() const { return data_; }
  std::int32_t EntityCount() const { return static_cast<std::int32_t>(data_.entities.size()); }
  const EntityRecord& Entity(std::int32_t index) const {
    return data_.entities[static_cast<std::size_t>(index)];
  }
  /// The pipe that an entity is; it must be one (pipe >= 0 in its record).
  const PipeRecord& PipeOf(std::int32_t index) const;
  /// The living pipes of the model, in drawing order.
  std::vector<std::int32_t> Pipes() const;

  /// An entity's tags as the file has them; empty for one that was added since.
  std::string_view SourceTags(std::int32_t index) const;

  AcDbObjectId IdOf(std::int32_t index) const;
  /// Index of an entity, also an erased one; -1 where the identifier is none of this drawing.
  std::int32_t IndexOf(AcDbObjectId id) const;
  /// The living entity with a handle, or -1. Of several the first.
  std::int32_t FindHandle(std::uint64_t handle) const;

  // Pipes.

  /// The way along a pipe.
  PipeCurve CurveOf(std::int32_t index) const;
  /// Text of a field; false, with an empty text, where the pipe does not have it or the entity is no pipe.
  bool GetField(std::int32_t index, const CString& key, CString& text) const;
  /// All fields, in the order of the file, repeated keys included.
  FieldList Fields(std::int32_t index) const;
  double Diameter(std::int32_t index) const;
  std::int32_t Kind(std::int32_t index) const;
  /// Entities attached to a pipe, in drawing order.
  std::vector<std::int32_t> AttachedTo(std::int32_t index) const;
  /// What connects to what, brought up to date first.
  const Connections& GetConnections() const;

  // Changes. Outside of a step each of them is a step of its own.

  /// Adds a line to model space that is a pipe with these fields. None (and nothing added) where a coordinate
  /// is no number or beyond 1e15, or a text is too long.
  AcDbObjectId AddPipe(const AcGePoint3d& start, const AcGePoint3d& end, const FieldList& fields = {},
                       AcDbObjectId layer = {});
  /// Adds an ordinary line to model space. None (and nothing added) where a coordinate is no number or beyond
  /// 1e15.
  AcDbObjectId AddLine(const AcGePoint3d& start, const AcGePoint3d& end, AcDbObjectId layer = {});
  /// Adds a text to model space, with extended data (groups from 1000 on, as written in the file) or none.
  /// None (and nothing added) where a number is none or a text of the data too long.
  AcDbObjectId AddText(const TextValues& values, std::string_view extendedData = {});
  Acad::ErrorStatus Erase(std::int32_t index);
  Acad::ErrorStatus SetDiameter(std::int32_t index, double diameter);
  /// Sets fields of a pipe. A text that is too long, or too much of them, is refused with a message to the
  /// observers, and nothing is changed.
  Acad::ErrorStatus SetFields(std::int32_t index, const FieldList& fields);
  /// Makes a line or polyline of model space a pipe and sets its fields; a pipe stays one.
  Acad::ErrorStatus MakePipe(std::int32_t index, const FieldList& fields);
  /// The same for many, each once, in one step. Where one of them refuses nothing at all is changed.
  Acad::ErrorStatus MakePipes(std::span<const FieldsOfPipe> pipes);
  /// Whether MakePipes would take these; what refuses is told to the observers.
  Acad::ErrorStatus CheckPipes(std::span<const FieldsOfPipe> pipes) const;
  /// Moves one end of a pipe that is a single straight line. Not of that kind where it is none; refused where
  /// a coordinate is no number or beyond 1e15.
  Acad::ErrorStatus MoveLineEnd(std::int32_t index, bool atStart, const AcGePoint3d& point);
  Acad::ErrorStatus SetLayer(std::int32_t index, AcDbObjectId layer, bool allowHidden);

  /// Layers and text styles by name, made where they are missing.
  AcDbObjectId InitLayer(const CString& name);
  AcDbObjectId InitTextStyle(const CString& name);
  /// Index of the layer or style behind an identifier, or -1.
  std::int32_t LayerIndex(AcDbObjectId id) const;
  std::int32_t StyleIndex(AcDbObjectId id) const;
  AcDbObjectId LayerId(std::int32_t index) const;
  AcDbObjectId StyleId(std::int32_t index) const;

  /// Height of water annotations, mm: 3.5 times the dimension scale, with 100 where that is 0, below it, 1 or
  /// missing.
  double AnnotationHeight() const;

  // Undo. A step is what one command did; steps may be nested, the outermost counts.

  void BeginStep();
  void EndStep();
  bool CanUndo() const { return undone_ < steps_.size(); }
  bool CanRedo() const { return undone_ > 0; }
  void Undo();
  void Redo();
  /// Whether it differs from what was read or last saved.
  bool IsModified() const;
  /// Says that the drawing as it is now has been saved.
  void MarkSaved();

  void AddObserver(DrawingObserver* observer);
  void RemoveObserver(DrawingObserver* observer);
  /// Tells the observers to draw anew.
  void NotifyGraphics();

  // Open objects, for the platform's classes.

  Acad::ErrorStatus Open(AcDbObjectId id, AcDb::OpenMode mode, const ZcRxClass* wanted, ZcDbEntity*& object);
  void Close(ZcDbEntity* object);
  /// Takes over an object that stands for an entity just added, open for write.
  void Adopt(ZcDbEntity* object, AcDbObjectId id);

 private:
  struct EntityState {
    std::string_view tags;
    bool alive = false;
  };
  /// One change, with what is needed to go back and forth.
  struct Change {
    enum class Target { Entity, Layer, Style, Application } target = Target::Entity;
    std::int32_t index = 0;
    EntityState before;
    EntityState after;
  };
  using Step = std::vector<Change>;

  class StepScope;
  struct OpenObjects;

  std::string_view Keep(std::string bytes);
  void DecodeEntity(std::int32_t index);
  AcDbObjectId Enter(std::string tags, std::uint64_t handle);
  void ChangeEntity(std::int32_t index, const EntityState& after);
  void Apply(const Change& change, bool forward);
  void Replay(const Change& change, bool forward);
  Acad::ErrorStatus WriteFields(std::int32_t index, const FieldList& fields);
  Acad::ErrorStatus CheckFields(const FieldList& fields) const;
  Acad::ErrorStatus CheckPipe(std::int32_t index) const;
  Acad::ErrorStatus CheckDataSize(std::string_view tags) const;
  std::int32_t PutInTable(std::vector<NamedRecord>& table, Change::Target target, const CString& name);
  void RegisterApplication(std::string_view name);
  std::int32_t LayerOf(const CString& name);
  std::string LayerBytes(AcDbObjectId layer) const;
  TagWriter LineTags(std::uint64_t handle, const AcGePoint3d& start, const AcGePoint3d& end,
                     AcDbObjectId layer) const;
  TagWriter EntityHead(std::string_view type, std::uint64_t handle, AcDbObjectId layer) const;
  DrawingChange Describe(DrawingChange::Kind kind, std::int32_t index) const;
  void Notify(const DrawingChange& change) const;
  void Refuse(const CString& message) const;
  void Record(const Change& change);

  DrawingData data_;
  std::uint64_t serial_;
  std::deque<std::string> kept_;  // tags that no file holds; steps refer to them, so they stay
  std::unordered_map<CString, std::int32_t> layersByName_;         // folded
  std::int32_t sourceCount_ = 0;                                   // entities that the file has
  std::unordered_map<std::int32_t, std::string_view> sourceTags_;  // of those of them that were changed
  std::unordered_multimap<std::uint64_t, std::int32_t> attachments_;
  mutable std::vector<std::pair<std::uint64_t, std::int32_t>> handles_;  // sorted; brought up to date on use
  mutable std::int32_t handlesKnown_ = 0;
  mutable std::unique_ptr<Connections> connections_;
  std::vector<DrawingObserver*> observers_;
  std::vector<Step> steps_;
  Step openStep_;
  std::int32_t stepDepth_ = 0;
  std::size_t undone_ = 0;
  std::size_t savedAt_ = 0;
  bool savedIsLost_ = false;
  std::unique_ptr<OpenObjects> open_;
};

/// The drawing that commands work on; an empty one at first.
Drawing& WorkingDrawing();
/// Makes another drawing the working one; gives the former.
std::unique_ptr<Drawing> ReplaceWorkingDrawing(std::unique_ptr<Drawing> drawing);

/// Name of a layer, style or application in the form in which names are compared: letters a to z in upper
/// case.
CString FoldedName(std::wstring_view name);

}  // namespace zwt
