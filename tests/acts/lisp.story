Opened apartment.dxf
; drawing: samples/apartment.dxf
; Expressions over several lines, the host's objects from Lisp, errors that don't end the session in a dialog.
Command: (setq doc (vla-get-activedocument
(_>   (vlax-get-acad-object)))
#<VLA-OBJECT>
Command: (vlax-get doc 'Name)
"apartment.dxf"
Command: (vlax-get (vlax-get doc 'Blocks) 'Count)
24
Command: !ZOL101
nil
Command: (defun tri (n) (if (= n 0) 0 (+ n (tri (1- n)))))
TRI
Command: (tri 100)
5050
