vorlane-console: truncated_entities.dxf:21: the file breaks off in section ENTITIES
