#pragma once

#include "desk/import/import_links.h"

#include <string>
#include <unordered_map>

namespace importing {

/// Brings table entries (layers, text styles, linetypes, dimension styles, application names) from one
/// drawing into another where their names are missing.
class ImportTables {
  public:
    ImportTables(const Store& from, Store& to, LayerTable& layers, ImportLinks& links);

    /// The handle here of the entry of that name; brought in first where it is missing, with its table
    /// where that is missing too. 0 where neither drawing has the entry.
    Handle require(TypeId table, const std::string& name);
    /// The same in a drawing that may have no handles: whether the entry is here now.
    bool provide(TypeId table, const std::string& name);
    /// Handle of a table itself, the owner of its entries.
    Handle tableHandle(TypeId entries) const;
    /// Adds an entry with these groups at the end of its table.
    EntityId add(TypeId type, const std::string& name, Handle handle, std::string_view bytes);
    /// Whether this drawing has the table.
    bool hasTable(TypeId entries) const { return ends_.contains(entries); }

  private:
    using Key = std::uint64_t;  ///< type and name
    static Key key(TypeId table, NameKey name) {
        return (static_cast<Key>(table) << 32) | static_cast<Key>(name);
    }
    void makeTable(TypeId entries);
    void copy(EntityId entry, TypeId table, Handle handle, std::string& bytes);
    bool keeps(TypeId table, const dxf::Tag& tag) const;
    void writeLayerDefaults(dxf::TagWriter& writer) const;
    void enterLayer(EntityId id, const std::string& name);

    const Store& from_;
    Store& to_;
    LayerTable& layers_;
    ImportLinks& links_;
    std::unordered_map<Key, EntityId> source_;    ///< entries of the source by its name keys
    std::unordered_map<Key, Handle> known_;       ///< entries here by this drawing's name keys
    std::unordered_map<TypeId, EntityId> ends_;   ///< ENDTAB of each table here
    std::unordered_map<TypeId, Handle> handles_;  ///< of the tables here
};

}  // namespace importing
