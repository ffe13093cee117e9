meta:
  id: meta
  title: Parameter metadata
  file-extension: bin
  endian: le
  encoding: UTF-8
doc: |
  The <code>.bin file of `metagen genm`: all plugin classes with their parameters' types, flags and
  defaults, then the side tables. The file ends with the scaling table.
doc-ref: bin-formats.md
seq:
  - id: tag
    contents: META
  - id: version
    type: s4
    doc: The document's version, truncated toward zero; -2147483648 when 32 bits can't hold it.
  - id: num_plugins
    type: u4
  - id: plugins
    type: plugin
    repeat: expr
    repeat-expr: num_plugins
  - id: files
    type: file_table
    doc: The parameters that name files.
  - id: input_files
    type: file_table
    doc: Those of them that name files to read.
  - id: scaling
    type: scaling_table
types:
  text:
    seq:
      - id: len_value
        type: u4
      - id: value
        type: str
        size: len_value
  plugin:
    seq:
      - id: name
        type: text
      - id: category
        type: text
        doc: Two double quotes when the plugin has none; a plugin may also have the empty text.
      - id: num_parameters
        type: u4
      - id: parameters
        type: parameter
        repeat: expr
        repeat-expr: num_parameters
  parameter:
    seq:
      - id: name
        type: text
      - id: type_name
        type: text
        doc: The parameter's type; of a list, the type of its elements.
      - id: flags
        type: u4
        valid:
          max: 7
      - id: default
        type: default_value
    instances:
      is_user_data:
        value: flags & 1 != 0
      is_file:
        value: flags & 2 != 0
      is_input_file:
        value: flags & 4 != 0
  default_value:
    seq:
      - id: kind
        type: u4
        enum: default_kind
        valid:
          in-enum: true
      - id: descriptor
        type: u4
        enum: descriptor
        valid:
          in-enum: true
        if: kind.to_i >= 3
      - id: value
        type:
          switch-on: kind
          cases:
            'default_kind::integer': s4
            'default_kind::float': f4
            'default_kind::string': text
            'default_kind::integers': integers
            'default_kind::floats': floats
        if: kind != default_kind::descriptor_only
  integers:
    seq:
      - id: num_elements
        type: u4
      - id: elements
        type: s4
        repeat: expr
        repeat-expr: num_elements
  floats:
    seq:
      - id: num_elements
        type: u4
        doc: |
          Numbers, not vectors or colours. 0 for an empty list, or when the default of what is no
          list could not be read.
      - id: elements
        type: f4
        repeat: expr
        repeat-expr: num_elements
  file_table:
    seq:
      - id: num_plugins
        type: u4
      - id: plugins
        type: file_plugin
        repeat: expr
        repeat-expr: num_plugins
  file_plugin:
    seq:
      - id: name
        type: text
      - id: num_parameters
        type: u4
      - id: parameters
        type: text
        repeat: expr
        repeat-expr: num_parameters
  scaling_table:
    seq:
      - id: num_plugins
        type: u4
      - id: plugins
        type: scaling_plugin
        repeat: expr
        repeat-expr: num_plugins
  scaling_plugin:
    seq:
      - id: name
        type: text
      - id: num_parameters
        type: u4
      - id: parameters
        type: scaling_parameter
        repeat: expr
        repeat-expr: num_parameters
  scaling_parameter:
    seq:
      - id: name
        type: text
      - id: unit
        type: s4
        doc: 1 is the scene's unit. Never 0.
      - id: power
        type: s4
      - id: inverse
        type: u1
        valid:
          max: 1
      - id: num_conditions
        type: u4
      - id: conditions
        type: condition
        repeat: expr
        repeat-expr: num_conditions
  condition:
    doc: |
      Holds when the other parameter has this value. A condition whose value in the document is no
      number ends with its tag; this description can't tell that from the bytes and takes every
      condition to have a value.
    seq:
      - id: parameter
        type: text
      - id: operation
        type: s4
        doc: 1 is "equals".
      - id: tag
        type: u4
        enum: value_tag
        valid:
          in-enum: true
      - id: value
        type:
          switch-on: tag
          cases:
            'value_tag::float': f4
            'value_tag::integer': s4
enums:
  default_kind:
    0: integer
    1: float
    2: string
    3: descriptor_only
    4: integers
    5: floats
  descriptor:
    273: float3
    289: float4
    321: float9
    385: float12
    521: list_of_float
    522: list_of_integer
    524: list_of_string
    529: list_of_float3
    545: list_of_float4
    577: list_of_float9
    641: list_of_float12
  value_tag:
    265: float
    266: integer
