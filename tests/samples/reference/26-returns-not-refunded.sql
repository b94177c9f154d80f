with lines as (
  select l.*, p.ProductName
  from "Order Lines" as l
  join Products as p on p.ProductID = l.ProductID
)
select r.ReturnID, r.ReturnedOn, r.OrderID, r.LineNo, l.ProductName, l.Quantity, r.Quantity, r.Reason,
       round(l.Quantity * l.UnitPrice * (1 - l.Discount), 2)
from Returns as r
join lines as l on (l.OrderID, l.LineNo) = (r.OrderID, r.LineNo)
where not r.Refunded and r.Reason not in ('Not needed', 'Too late') and r.ReturnedOn >= '2025-01-01'
order by r.ReturnedOn, r.OrderID, r.LineNo
