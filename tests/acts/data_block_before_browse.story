Opened template.dxf
; drawing: samples/template.dxf
; copy: samples/porte_double.dxf
; The list goes by places: ARBRE sorts before the second command and stands in its place, so choosing it browses, and
; the moved command counts as a block's name.
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
      6 SURVEY_POINT
> Combo1 # 1
+-- Select a block file
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> file porte_double.dxf
> show
  Frame1: Attributs de 'porte_double'
    ListView1: 13 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | Colonne 1
        2 | Y_ | Colonne 2
        3 | Z_ | Colonne 3
        4 | Ech.X | Colonne 4
        5 | Ech.Y | Colonne 5
        6 | Ech.Z | Colonne 6
        7 | Rotation(rd) | Colonne 7
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | CODE | Colonne 8
        12 | PASSAGE | Colonne 9
        13 | VITRAGE | Colonne 10
    LblVal: Value
    ComboBox1: ""
        0 Colonne 1
        1 Colonne 2
        2 Colonne 3
        3 Colonne 4
        4 Colonne 5
        5 Colonne 6
        6 Colonne 7
        7 Colonne 8
        8 Colonne 9
        9 Colonne 10
        10 Colonne 11
        11 Colonne 12
        12 Colonne 13
  Frame2: Insertion data: ''
    ListView2: 0 rows
        # | N° | Colonne 1 | Colonne 2 | Colonne 3 | Colonne 4 | Colonne 5 | Colonne 6 | Colonne 7 | Colonne 8 | Colonne 9 | Colonne 10 | Colonne 11 | Colonne 12 | Colonne 13
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: "porte_double"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 OCULUS
    > 6 porte_double
      7 POTEAU
      8 SURVEY_POINT
> Combo1 # 2
> show
  Frame1: Attributs de 'Browse >>>'
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | Colonne 1
        2 | Y_ | Colonne 2
        3 | Z_ | Colonne 3
        4 | Ech.X | Colonne 4
        5 | Ech.Y | Colonne 5
        6 | Ech.Z | Colonne 6
        7 | Rotation(rd) | Colonne 7
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
    LblVal: Value
    ComboBox1: ""
        0 Colonne 1
        1 Colonne 2
        2 Colonne 3
        3 Colonne 4
        4 Colonne 5
        5 Colonne 6
        6 Colonne 7
        7 Colonne 8
        8 Colonne 9
        9 Colonne 10
        10 Colonne 11
        11 Colonne 12
        12 Colonne 13
        13 Colonne 1
        14 Colonne 2
        15 Colonne 3
        16 Colonne 4
        17 Colonne 5
        18 Colonne 6
        19 Colonne 7
        20 Colonne 8
        21 Colonne 9
        22 Colonne 10
  Frame2: Insertion data: ''
    ListView2: 0 rows
        # | N° | Colonne 1 | Colonne 2 | Colonne 3 | Colonne 4 | Colonne 5 | Colonne 6 | Colonne 7 | Colonne 8 | Colonne 9 | Colonne 10
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: "Browse >>>"
      0 <<< Select
      1 ARBRE
    > 2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 OCULUS
      6 porte_double
      7 POTEAU
      8 SURVEY_POINT
> Combo1 # 1
+-- Select a block file
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> cancel
> show
  Frame1: Attributs de ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | Colonne 1
        2 | Y_ | Colonne 2
        3 | Z_ | Colonne 3
        4 | Ech.X | Colonne 4
        5 | Ech.Y | Colonne 5
        6 | Ech.Z | Colonne 6
        7 | Rotation(rd) | Colonne 7
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
    LblVal: Value
    ComboBox1: ""
        0 Colonne 1
        1 Colonne 2
        2 Colonne 3
        3 Colonne 4
        4 Colonne 5
        5 Colonne 6
        6 Colonne 7
        7 Colonne 8
        8 Colonne 9
        9 Colonne 10
        10 Colonne 11
        11 Colonne 12
        12 Colonne 13
        13 Colonne 1
        14 Colonne 2
        15 Colonne 3
        16 Colonne 4
        17 Colonne 5
        18 Colonne 6
        19 Colonne 7
        20 Colonne 8
        21 Colonne 9
        22 Colonne 10
        23 Colonne 1
        24 Colonne 2
        25 Colonne 3
        26 Colonne 4
        27 Colonne 5
        28 Colonne 6
        29 Colonne 7
        30 Colonne 8
        31 Colonne 9
        32 Colonne 10
  Frame2: Insertion data: ''
    ListView2: 0 rows
        # | N° | Colonne 1 | Colonne 2 | Colonne 3 | Colonne 4 | Colonne 5 | Colonne 6 | Colonne 7 | Colonne 8 | Colonne 9 | Colonne 10
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 OCULUS
      6 porte_double
      7 POTEAU
      8 SURVEY_POINT
> BtnClose
[fmReInsert] hidden
Command: LIST
References  Block
         0  ETIQUETTE_PIECE
         0  POTEAU
         0  NORD
         0  ARBRE
         0  SURVEY_POINT
         0  porte_double
         0  OCULUS
The changes to template.dxf were not saved.
