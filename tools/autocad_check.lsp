;;; Checks an AutoCAD against what Vorlane asks of it. In a copy of samples/apartment.dxf:
;;;
;;;   (load "autocad_check.lsp")  then the command VNCHECK; it asks for one pick of a block reference, one point and one
;;;   angle, and one selection.
;;;
;;; Every member that the add-in calls is called as the add-in calls it, late-bound and with its out-arguments, and what comes
;;; is printed as a line "VNCHECK member = value". The text window's lines, or the log file (LOGFILEON), go to
;;; tools/compare_checks.py beside the lines that the desk printed for the same answers. What is inserted is deleted again.

(vl-load-com)

(defun vncheck-class (name) (if (vl-catch-all-error-p name) "an object" name))

(defun vncheck-text (value)
  (cond
    ((= (type value) 'REAL) (rtos value 2 6))
    ((= (type value) 'VARIANT) (vncheck-text (vlax-variant-value value)))
    ((= (type value) 'SAFEARRAY) (vncheck-text (vlax-safearray->list value)))
    ((= (type value) 'VLA-OBJECT) (vncheck-class (vl-catch-all-apply 'vlax-get (list value 'ObjectName))))
    ((vl-catch-all-error-p value) "fails")
    ((and value (listp value))
      (strcat "(" (apply 'strcat (mapcar '(lambda (part) (strcat " " (vncheck-text part))) value)) " )"))
    (t (vl-prin1-to-string value))))

(defun vncheck-tell (name value)
  (princ (strcat "\nVNCHECK " name " = " (vncheck-text value)))
  value)

;;; Calls (function . arguments) and tells what came; a failure is told too, and gives nil.
(defun vncheck-try (name call / value)
  (setq value (vl-catch-all-apply (car call) (cdr call)))
  (vncheck-tell name value)
  (if (vl-catch-all-error-p value) nil value))

(defun vncheck-point (x y z / point)
  (setq point (vlax-make-safearray vlax-vbDouble '(0 . 2)))
  (vlax-safearray-fill point (list x y z))
  (vlax-make-variant point))

;;; The filter of the add-in: two arrays, group codes and what they must hold. The small r of the class is the add-in's.
(defun vncheck-filter (name / codes data)
  (setq codes (vlax-make-safearray vlax-vbInteger '(0 . 1))
        data (vlax-make-safearray vlax-vbVariant '(0 . 1)))
  (vlax-safearray-fill codes '(100 2))
  (vlax-safearray-fill data (list "AcDbBlockreference" name))
  (list codes data))

(defun vncheck-blocks (doc / names)
  (vlax-for block (vlax-get doc 'Blocks)
    (if (and (= (vlax-get block 'IsLayout) 0) (= (vlax-get block 'IsXRef) 0))
      (setq names (cons (vlax-get block 'Name) names))))
  (vncheck-tell "Blocks, neither layouts nor external" (reverse names)))

(defun vncheck-reference (reference / attributes)
  (foreach member '(ObjectName Name InsertionPoint XScaleFactor YScaleFactor ZScaleFactor Rotation Visible Layer Color
                     hasAttributes)
    (vncheck-try (strcat "reference " (vl-princ-to-string member)) (list 'vlax-get reference member)))
  (foreach change '((XScaleFactor 2.0) (YScaleFactor -1.5) (ZScaleFactor 1.0) (Rotation 1.25) (Visible 0) (Visible -1))
    (vncheck-try (strcat "reference put " (vl-princ-to-string (car change)))
      (list 'vlax-put reference (car change) (cadr change)))
    (vncheck-try (strcat "reference then " (vl-princ-to-string (car change)))
      (list 'vlax-get reference (car change))))
  (vncheck-try "reference put InsertionPoint"
    (list 'vlax-put-property reference 'InsertionPoint (vncheck-point 3.0 4.0 5.0)))
  (vncheck-try "reference then InsertionPoint" (list 'vlax-get reference 'InsertionPoint))
  (setq attributes (vncheck-try "reference GetAttributes" (list 'vlax-invoke reference 'GetAttributes)))
  (if (listp attributes)
    (foreach attribute attributes
      (vncheck-try "attribute TagString" (list 'vlax-get attribute 'TagString))
      (vncheck-try "attribute TextString" (list 'vlax-get attribute 'TextString))
      (vncheck-try "attribute put TextString" (list 'vlax-put attribute 'TextString "Porte 7"))
      (vncheck-try "attribute then TextString" (list 'vlax-get attribute 'TextString))))
  (vncheck-try "reference Update" (list 'vlax-invoke reference 'Update))
  (foreach member '(length Area Perimeter Circumference)
    (vncheck-try (strcat "reference " (vl-princ-to-string member)) (list 'vlax-get reference member)))
  (vncheck-try "reference Delete" (list 'vlax-invoke reference 'Delete))
  (vncheck-try "reference Name, deleted" (list 'vlax-get reference 'Name)))

(defun vncheck-space (doc / space line names)
  (setq space (vlax-get doc 'ModelSpace))
  (setq line
    (vncheck-try "AddLine"
      (list 'vlax-invoke-method space 'AddLine (vncheck-point 0.0 0.0 0.0) (vncheck-point 3.0 4.0 0.0))))
  (vncheck-try "line length" (list 'vlax-get line 'length))
  (vncheck-try "line Perimeter" (list 'vlax-get line 'Perimeter))
  (vncheck-try "line Delete" (list 'vlax-invoke line 'Delete))
  (vncheck-try "InsertBlock, unknown block"
    (list 'vlax-invoke-method space 'InsertBlock (vncheck-point 0.0 0.0 0.0) "NO SUCH BLOCK" 1.0 1.0 1.0 0.0))
  (setq names (vncheck-blocks doc))
  (foreach name '("PORTE_90" "ETIQUETTE_PIECE" "CHAISE")
    (vncheck-reference
      (vncheck-try (strcat "InsertBlock " name)
        (list 'vlax-invoke-method space 'InsertBlock (vncheck-point 1.0 2.0 0.0) name 1.0 1.0 1.0 0.5)))))

(defun vncheck-sets (doc / sets picked filter)
  (setq sets (vlax-get doc 'SelectionSets))
  (vncheck-try "SelectionSets Count" (list 'vlax-get sets 'Count))
  (setq picked (vncheck-try "SelectionSets Add" (list 'vlax-invoke-method sets 'Add "VNCHECK")))
  (vncheck-try "SelectionSets Add, again" (list 'vlax-invoke-method sets 'Add "VNCHECK"))
  (foreach name '("PORTE_80" "porte_80" "NO SUCH BLOCK")
    (setq filter (vncheck-filter name))
    (vncheck-try "set Clear" (list 'vlax-invoke-method picked 'Clear))
    (vncheck-try (strcat "set Select " name)
      (list 'vlax-invoke-method picked 'Select 5 nil nil (car filter) (cadr filter)))
    (vncheck-try "set Count" (list 'vlax-get picked 'Count)))
  (setq filter (vncheck-filter "PORTE_80"))
  (vncheck-try "set SelectOnScreen" (list 'vlax-invoke-method picked 'SelectOnScreen (car filter) (cadr filter)))
  (vncheck-try "set Count, on screen" (list 'vlax-get picked 'Count))
  (vncheck-try "set Item 0" (list 'vlax-invoke-method picked 'Item 0))
  (vncheck-try "set Item, beyond the end" (list 'vlax-invoke-method picked 'Item 100000))
  (vncheck-try "set Delete" (list 'vlax-invoke-method picked 'Delete)))

(defun vncheck-picks (doc / utility entity point)
  (setq utility (vlax-get doc 'Utility))
  (vncheck-try "GetEntity"
    (list 'vlax-invoke-method utility 'GetEntity 'entity 'point "\nPick a block reference: "))
  (vncheck-tell "GetEntity's entity" entity)
  (vncheck-try "GetPoint, no base"
    (list 'vlax-invoke-method utility 'GetPoint nil "\nA point: "))
  (vncheck-try "GetAngle"
    (list 'vlax-invoke-method utility 'GetAngle (vncheck-point 0.0 0.0 0.0) "\nAn angle: ")))

(defun vncheck-lisp (application / lisp functions)
  (setq lisp (vncheck-try "VL.Application" (list 'vlax-invoke-method application 'GetInterfaceObject "VL.Application")))
  (if lisp
    (progn
      (setq functions (vlax-get (vlax-get lisp 'ActiveDocument) 'Functions))
      (vncheck-try "a Lisp function"
        (list 'vlax-invoke (vlax-invoke functions 'Item "strcat") 'funcall "VN" "CHECK")))))

(defun C:VNCHECK (/ application doc)
  (setq application (vlax-get-acad-object)
        doc (vlax-get application 'ActiveDocument))
  (vncheck-lisp application)
  (vncheck-space doc)
  (vncheck-sets doc)
  (vncheck-picks doc)
  (princ "\nVNCHECK end\n")
  (princ))

(princ)
